#pragma once

#include "velm/velm_export.h"

#include <QObject>
#include <QPoint>

#include <functional>
#include <memory>

namespace velm {
class QtWindowParent;

/// The object behind a page that lives in a popup window of its own above a host window: it carries the window's
/// parents and tells the page when to close and where to go. The owner, not the core, tells when the popup has closed.
class VELM_EXPORT TransientPopupCore : public QObject
{
    Q_OBJECT
public:
    explicit TransientPopupCore(QObject* parent = nullptr);
    ~TransientPopupCore() override;

    Q_INVOKABLE void requestClose();
    /// What customContentHasFocus() asks.
    void setCustomContentHasFocusImpl(const std::function<bool()>& function);
    /// Whether the popup is to stay open though its window lost the focus; false when nothing was set.
    Q_INVOKABLE bool customContentHasFocus() const;
    /// A mark for the page's handling of the mouse, which nobody else touches; false at first.
    Q_INVOKABLE bool ignoreNextMouseRelease() const;
    Q_INVOKABLE void setIgnoreNextMouseRelease(bool ignore);
    /// Part of this object; pages may hold it.
    Q_INVOKABLE velm::QtWindowParent* windowParent();

Q_SIGNALS:
    void closeRequested();
    void closed();
    /// The page is to move its window.
    void setPosition(QPoint position);

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
