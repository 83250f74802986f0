#include "host/popupanchor.h"

#include "host/nativewindow.h"
#include "velm/bridge/qtwindowparent.h"
#include "velm/screens/screencoordinates.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <wx/toplevel.h>

#include <algorithm>

namespace workbench {
PopupAnchor::PopupAnchor()
{
    connect(&m_core, &velm::TransientPopupCore::closed, this, &PopupAnchor::release);
    // Queued: Qt moves the windows of a screen that goes after it told of that.
    const auto screensChanged = [this] {
        if (m_isHeld)
            update();
    };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, screensChanged, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, screensChanged, Qt::QueuedConnection);
}

PopupAnchor::~PopupAnchor()
{
    release();
}

void PopupAnchor::hold(const QRectF& beside, QSize popup)
{
    release();
    m_beside = beside;
    m_size = popup;
    m_isHeld = true;
    // Window managers want to know the window itself, not the page's inside it.
    if (const std::uintptr_t window = native::toplevelWindow(*m_window))
        m_hostWindow.reset(QWindow::fromWinId(window));
    m_core.windowParent()->setWxParent(wxGetTopLevelParent(m_window));
    m_core.windowParent()->setQtParent(m_hostWindow.get());
    velm::PositionManager::instance().add(this);
    update();
}

void PopupAnchor::release()
{
    if (!m_isHeld)
        return;
    m_isHeld = false;
    velm::PositionManager::instance().remove(this);
}

void PopupAnchor::update()
{
    const auto geometry = velm::getMonitorInfo(nullptr, wxGetTopLevelParent(m_window))->getGeometry();
    const auto onScreen = [&](const QPointF& point) {
        return velm::toScreenCoord(m_window, geometry, velm::LogicalPoint(point.x(), point.y())).toQt().toPoint();
    };
    QPoint place = onScreen(m_beside.bottomLeft());
    const QPoint above = onScreen(m_beside.topLeft()) - QPoint(0, m_size.height());
    const QScreen* screen = QGuiApplication::screenAt(place);
    if (!screen)
        screen = QGuiApplication::screenAt(onScreen(m_beside.topLeft()));
    if (!screen) {
        m_core.requestClose();
        return;
    }
    const QRect area = screen->availableGeometry();
    if (place.y() + m_size.height() > area.bottom() + 1 && above.y() >= area.top())
        place.setY(above.y());
    place.setX(std::max(area.left(), std::min(place.x(), area.right() + 1 - m_size.width())));
    place.setY(std::max(area.top(), std::min(place.y(), area.bottom() + 1 - m_size.height())));
    Q_EMIT m_core.setPosition(place);
}
} // namespace workbench
