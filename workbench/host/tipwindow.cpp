#include "host/tipwindow.h"

#include "host/themecolours.h"
#include "velm/dialogs/tooltipposition.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace workbench {
namespace {
constexpr int margin = 6;
// The cursor's picture lies between the place that it points to and the tip.
constexpr int offsetX = 12;
constexpr int offsetY = 18;
constexpr double pointSize = 8;
} // namespace

TipWindow::TipWindow()
{
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint | Qt::WindowDoesNotAcceptFocus |
             Qt::WindowTransparentForInput);
}

QFont TipWindow::font() const
{
    QFont result = QGuiApplication::font();
    result.setPointSizeF(pointSize);
    return result;
}

void TipWindow::showText(const QString& text, QPoint cursor)
{
    const QScreen* screen = QGuiApplication::screenAt(cursor);
    if (!screen)
        return;
    m_text = text;
    const QSize size = QFontMetrics(font()).size(0, text) + 2 * QSize(margin, margin);
    const QRect area = screen->geometry();
    const QPoint edge = area.topLeft() + QPoint(area.width(), area.height());
    const QPoint place = velm::calculateTooltipPosition(size.width(), size.height(), offsetX, offsetY, cursor, edge);
    setGeometry(QRect(place, size));
    show();
    raise();
    update();
}

void TipWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect area(QPoint(), size());
    painter.fillRect(area, qtGuiColour(ut::EGuiColor::Grey6));
    painter.fillRect(area.adjusted(1, 1, -1, -1), qtGuiColour(ut::EGuiColor::Grey1));
    painter.setFont(font());
    painter.setPen(qtGuiColour(ut::EGuiColor::Grey10));
    painter.drawText(area.adjusted(margin, margin, -margin, -margin), Qt::AlignLeft | Qt::AlignTop, m_text);
}
} // namespace workbench
