#include "velm/dialogs/transientpopupcore.h"

#include "velm/bridge/qtwindowparent.h"

#include <QJSEngine>

namespace velm {
struct TransientPopupCore::Pimpl
{
    QtWindowParent windowParent{nullptr};
    std::function<bool()> customContentHasFocus;
    bool ignoreNextMouseRelease = false;

    Pimpl() { QJSEngine::setObjectOwnership(&windowParent, QJSEngine::CppOwnership); }
};

TransientPopupCore::TransientPopupCore(QObject* parent) : QObject(parent), m_pimpl(new Pimpl)
{}

TransientPopupCore::~TransientPopupCore() = default;

void TransientPopupCore::requestClose()
{
    Q_EMIT closeRequested();
}

void TransientPopupCore::setCustomContentHasFocusImpl(const std::function<bool()>& function)
{
    m_pimpl->customContentHasFocus = function;
}

bool TransientPopupCore::customContentHasFocus() const
{
    return m_pimpl->customContentHasFocus && m_pimpl->customContentHasFocus();
}

bool TransientPopupCore::ignoreNextMouseRelease() const
{
    return m_pimpl->ignoreNextMouseRelease;
}

void TransientPopupCore::setIgnoreNextMouseRelease(bool ignore)
{
    m_pimpl->ignoreNextMouseRelease = ignore;
}

QtWindowParent* TransientPopupCore::windowParent()
{
    return &m_pimpl->windowParent;
}
} // namespace velm
