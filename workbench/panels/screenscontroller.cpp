#include "panels/screenscontroller.h"

#include "velm/bridge/conversions.h"
#include "velm/screens/screencoordinates.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <wx/toplevel.h>
#include <wx/utils.h>

namespace workbench {
namespace {
constexpr int standardDpi = 96;

QVariantMap row(const QString& label, const QString& value)
{
    return {{QStringLiteral("label"), label}, {QStringLiteral("value"), value}};
}

QString placeText(const QPointF& point)
{
    return QStringLiteral("%1, %2").arg(point.x()).arg(point.y());
}

QString rectText(const QRectF& rect)
{
    return QStringLiteral("%1 × %2  (%3)").arg(rect.width()).arg(rect.height()).arg(placeText(rect.topLeft()));
}

QRectF physicalRect(const QScreen& screen)
{
    return velm::getMonitorInfo(QPointF(screen.geometry().topLeft()))->getScreenGeometry().rect;
}
} // namespace

ScreensController::ScreensController()
{
    velm::PositionManager::instance().add(this);
    connect(
        qGuiApp, &QGuiApplication::screenAdded, this, [this] { update(); }, Qt::QueuedConnection);
    connect(
        qGuiApp, &QGuiApplication::screenRemoved, this, [this] { update(); }, Qt::QueuedConnection);
}

ScreensController::~ScreensController()
{
    velm::PositionManager::instance().remove(this);
}

void ScreensController::setWindow(wxWindow* page)
{
    m_page = page;
    m_popup.setWindow(page);
    update();
}

void ScreensController::update()
{
    readMonitors();
    readWindow();
    Q_EMIT changed();
}

void ScreensController::readMonitors()
{
    m_monitors.clear();
    m_monitorRows.clear();
    m_desktop = {};
    for (const QScreen* screen : QGuiApplication::screens()) {
        const std::unique_ptr<velm::IMonitorInfo> info = velm::getMonitorInfo(screen);
        const QRectF logical = info->getGeometry().rect;
        const QRectF physical = physicalRect(*screen);
        const bool primary = screen == QGuiApplication::primaryScreen();
        m_desktop |= physical.toRect();
        m_monitors.append(QVariantMap{{QStringLiteral("name"), screen->name()},
                                      {QStringLiteral("rect"), physical.toRect()},
                                      {QStringLiteral("primary"), primary}});
        m_monitorRows.append(row(primary ? tr("%1 (primary)").arg(screen->name()) : screen->name(),
                                 tr("scale %1, %2 dots per inch")
                                     .arg(info->getScale())
                                     .arg(velm::getMonitorDPI(physical.topLeft()) * standardDpi)));
        m_monitorRows.append(row(tr("    physical"), rectText(physical)));
        m_monitorRows.append(row(tr("    logical"), rectText(logical)));
    }
}

void ScreensController::readWindow()
{
    m_windowRows.clear();
    wxWindow* frame = m_page ? wxGetTopLevelParent(m_page) : nullptr;
    if (!frame)
        return;
    const velm::IMonitorInfo::MonitorGeometry geometry = velm::getMonitorInfo(nullptr, frame)->getGeometry();
    const QScreen* screen = QGuiApplication::screenAt(geometry.origin.toPoint());
    m_frameRect = QRect(velm::toQt(frame->GetScreenPosition()), velm::toQt(velm::getWindowSize(*frame)));
    m_windowRows.append(row(tr("Monitor"), screen ? screen->name() : tr("none")));
    m_windowRows.append(row(tr("Physical"), rectText(m_frameRect)));
    m_windowRows.append(row(tr("Logical"), rectText(velm::getScreenRect(frame, geometry).toQt())));
}

void ScreensController::followCursor()
{
    if (!m_page)
        return;
    const wxPoint mouse = wxGetMousePosition();
    if (!m_cursorRows.isEmpty() && m_cursor == velm::toQt(mouse))
        return;
    m_cursor = velm::toQt(mouse);
    const QPointF logical = QCursor::pos();
    wxWindow* frame = wxGetTopLevelParent(m_page);
    const velm::IMonitorInfo::MonitorGeometry geometry = velm::getMonitorInfo(nullptr, frame)->getGeometry();
    const velm::LogicalPoint inWindow(wxRealPoint(mouse - frame->GetScreenPosition()), geometry);
    m_cursorRows = {
        row(tr("Physical"), placeText(m_cursor)),
        row(tr("    from the logical"), placeText(velm::getGlobalCoordinates(logical, 0.0, 0.0))),
        row(tr("Logical"), placeText(logical)),
        row(tr("    by way of the window"), placeText(velm::toScreenCoord(frame, geometry, inWindow).toQt())),
    };
    Q_EMIT cursorChanged();
}

QVariantList ScreensController::inEachMonitor(int value) const
{
    QVariantList rows;
    for (const QScreen* screen : QGuiApplication::screens())
        rows.append(
            row(screen->name(), QString::number(velm::convertToMonitorUnit(screen->geometry().topLeft(), value))));
    return rows;
}
} // namespace workbench
