#include "markdrawing.h"

#include <QPainter>
#include <QSvgRenderer>

namespace velmqml {
MarkDrawing::MarkDrawing(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &MarkDrawing::changed, this, [this] { update(); });
}

void MarkDrawing::paint(QPainter* painter)
{
    if (m_outline.isEmpty())
        return;
    const QString svg =
        QStringLiteral("<svg viewBox='0 0 16 16'><path d='%1' fill='none' stroke='%2' stroke-opacity='%3' "
                       "stroke-width='%4' stroke-linecap='round' stroke-linejoin='round'/></svg>")
            .arg(m_outline, m_color.name(), QString::number(m_color.alphaF()), QString::number(m_lineWidth));
    QSvgRenderer renderer(svg.toUtf8());
    const qreal side = qMin(width(), height());
    renderer.render(painter, QRectF((width() - side) / 2, (height() - side) / 2, side, side));
}
} // namespace velmqml
