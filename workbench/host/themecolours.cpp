#include "host/themecolours.h"

#include "desktop/desktop.h"
#include "host/nativewindow.h"

#include <QString>

namespace workbench {
QColor qtGuiColour(ut::EGuiColor colour)
{
    const unsigned long value = ut::guiColorRef(colour);
    return QColor(GetRValue(value), GetGValue(value), GetBValue(value));
}

wxColour wxGuiColour(ut::EGuiColor colour)
{
    const unsigned long value = ut::guiColorRef(colour);
    return wxColour(GetRValue(value), GetGValue(value), GetBValue(value));
}

void applyThemeToControls(ut::EGuiColorTheme theme)
{
    using ut::EGuiColor;
    // The controls of the host's toolkit in the sizes and colours of the pages' style.
    static constexpr const char* sheet = R"(
* { font-size: 9pt; outline-color: @focus@; text-shadow: none; -gtk-icon-shadow: none; }
window, dialog, .background { background-color: @panel@; color: @text@; }
menubar { background-color: @ribbon@; color: @text@; box-shadow: inset 0 -1px @line@; }
menubar > menuitem { padding: 3px 9px; }
menubar > menuitem:hover { background-color: @hover@; color: @text@; box-shadow: none; }
menu, .menu, .context-menu { background-color: @popup@; color: @text@; border: 1px solid @line@; padding: 3px 0; }
menu menuitem { padding: 4px 10px; color: @text@; }
menu menuitem:hover { background-color: @hover@; color: @text@; }
menuitem:disabled, menuitem:disabled label { color: @dim@; }
menuitem accelerator { color: @secondary@; }
menu separator { background-color: @line@; margin: 3px 0; }
toolbar { background-color: @ribbon@; background-image: none; box-shadow: inset 0 -1px @line@; padding: 2px 4px 3px; }
toolbar button { background-color: transparent; border-color: transparent; padding: 2px; }
toolbar separator { background-color: @line@; min-width: 1px; margin: 5px 4px; }
notebook, notebook > stack { background-color: @panel@; }
notebook > header { background-color: @strip@; border: none; padding: 0; }
notebook > header.top { box-shadow: inset 0 -1px @line@; }
notebook > header > tabs > tab { background-image: none; background-color: transparent; color: @secondary@;
  padding: 4px 12px; min-height: 18px; border: none; box-shadow: none; margin: 0; }
notebook > header > tabs > tab:hover { background-color: @hover@; color: @text@; }
notebook > header > tabs > tab:checked { background-color: @panel@; color: @text@; box-shadow: inset 0 2px @accent@; }
notebook > header > tabs > tab label { font-weight: normal; }
entry { background-image: none; background-color: @input@; color: @text@; border: 1px solid @outline@;
  border-radius: 3px; padding: 2px 6px; min-height: 20px; box-shadow: none; caret-color: @text@; }
entry:focus { border-color: @focus@; box-shadow: inset 0 0 0 1px @focus@; }
entry image, entry placeholder { color: @dim@; }
textview, textview text { background-color: @input@; color: @secondary@; caret-color: @text@; }
selection, *:selected:not(row):not(menuitem), entry selection, textview text selection {
  background-color: @selection@; color: @text@; }
button { background-image: none; background-color: @button@; color: @text@; border: 1px solid @outline@;
  border-radius: 3px; padding: 3px 12px; min-height: 18px; box-shadow: none; }
button:hover { background-color: @hover@; }
button:active, button:checked { background-color: @selection@; }
button:focus { border-color: @focus@; box-shadow: inset 0 0 0 1px @focus@; outline-style: none; }
button:disabled { color: @dim@; }
button.default { background-color: @primary@; color: @primaryText@; border-color: @primary@; }
scrollbar { background-color: @panel@; border-color: @line@; }
scrollbar slider { background-color: @outline@; }
paned > separator { background-image: none; background-color: @panel@; min-width: 1px; min-height: 1px; }
treeview.view, list, .view { background-color: @input@; color: @text@; }
treeview.view header button { background-color: @ribbon@; border-radius: 0; border: none; }
progressbar trough { background-color: @input@; border: 1px solid @outline@; }
progressbar progress { background-image: none; background-color: @accent@; border: none; }
tooltip, tooltip.background { background-color: @popup@; color: @text@; border: 1px solid @line@; }
)";
    const std::pair<const char*, EGuiColor> names[] = {
        {"@panel@", EGuiColor::PanelBackground},
        {"@ribbon@", EGuiColor::RibbonBackground},
        {"@strip@", EGuiColor::PanelsetIconStripBase},
        {"@popup@", EGuiColor::Grey1},
        {"@input@", EGuiColor::InputBackground},
        {"@button@", EGuiColor::ButtonLightBackground},
        {"@hover@", EGuiColor::MenuItemHoverBackground},
        {"@selection@", EGuiColor::AccentSoft},
        {"@accent@", EGuiColor::AccentMedium},
        {"@focus@", EGuiColor::BlueHighlight},
        {"@primary@", EGuiColor::BlueButtonBackground},
        {"@line@", EGuiColor::Grey5},
        {"@outline@", EGuiColor::Grey6},
        {"@dim@", EGuiColor::Grey6},
        {"@secondary@", EGuiColor::Grey8},
        {"@text@", EGuiColor::Grey10},
        {"@primaryText@", theme == ut::EGuiColorTheme::Dark ? EGuiColor::Grey10 : EGuiColor::Grey0},
    };
    QString css = QString::fromLatin1(sheet);
    for (const auto& [name, colour] : names)
        css.replace(QLatin1String(name), qtGuiColour(colour).name());
    native::setStyleSheet(css.toUtf8().constData(), theme == ut::EGuiColorTheme::Dark);
}
} // namespace workbench
