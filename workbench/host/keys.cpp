#include "host/keys.h"

#include <QKeyEvent>

#include <utility>

namespace workbench {
namespace {
int keyCode(int key)
{
    static constexpr std::pair<Qt::Key, wxKeyCode> table[] = {
        {Qt::Key_Escape, WXK_ESCAPE},     {Qt::Key_Tab, WXK_TAB},       {Qt::Key_Backtab, WXK_TAB},
        {Qt::Key_Backspace, WXK_BACK},    {Qt::Key_Return, WXK_RETURN}, {Qt::Key_Enter, WXK_NUMPAD_ENTER},
        {Qt::Key_Insert, WXK_INSERT},     {Qt::Key_Delete, WXK_DELETE}, {Qt::Key_Home, WXK_HOME},
        {Qt::Key_End, WXK_END},           {Qt::Key_Left, WXK_LEFT},     {Qt::Key_Up, WXK_UP},
        {Qt::Key_Right, WXK_RIGHT},       {Qt::Key_Down, WXK_DOWN},     {Qt::Key_PageUp, WXK_PAGEUP},
        {Qt::Key_PageDown, WXK_PAGEDOWN},
    };
    for (const auto& [qt, wx] : table)
        if (key == qt)
            return wx;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return WXK_F1 + (key - Qt::Key_F1);
    return key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde ? key : WXK_NONE;
}
} // namespace

wxKeyEvent toCharHook(const QKeyEvent& event)
{
    wxKeyEvent result(wxEVT_CHAR_HOOK);
    result.m_keyCode = keyCode(event.key());
    result.SetControlDown(event.modifiers().testFlag(Qt::ControlModifier));
    result.SetShiftDown(event.modifiers().testFlag(Qt::ShiftModifier));
    result.SetAltDown(event.modifiers().testFlag(Qt::AltModifier));
    result.SetMetaDown(event.modifiers().testFlag(Qt::MetaModifier));
    return result;
}
} // namespace workbench
