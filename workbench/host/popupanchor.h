#pragma once

#include "velm/dialogs/positionmanager.h"
#include "velm/dialogs/transientpopupcore.h"

#include <QRectF>
#include <QSize>

#include <memory>

class QWindow;
class wxWindow;

namespace workbench {
/// Holds a popup of a page beside something on that page, whatever moves: below it, or above it where there is no room,
/// and on the screen. A popup whose place isn't on any screen any more is asked to close.
class PopupAnchor : public QObject, private velm::Positioner
{
    Q_OBJECT
    Q_PROPERTY(velm::TransientPopupCore* core READ core CONSTANT)
public:
    PopupAnchor();
    ~PopupAnchor() override;

    velm::TransientPopupCore* core() { return &m_core; }
    /// The window that the page lies in. It is not owned and outlives the anchor's use.
    void setWindow(wxWindow* window) { m_window = window; }
    /// To call as the popup opens, with what it is to stand beside on the page and its own size. It holds until the
    /// popup closes.
    Q_INVOKABLE void hold(const QRectF& beside, QSize popup);
    bool isHeld() const { return m_isHeld; }

private:
    void update() override;
    void release();

    velm::TransientPopupCore m_core;
    std::unique_ptr<QWindow> m_hostWindow;
    wxWindow* m_window = nullptr; // not owned
    QRectF m_beside;
    QSize m_size;
    bool m_isHeld = false;
};
} // namespace workbench
