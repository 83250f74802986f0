#include "resizedimage.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <utility>

namespace velmqml {
namespace {
QBrush chequerBrush(int size, const QColor& color, const QColor& background)
{
    QImage tile(2 * size, 2 * size, QImage::Format_ARGB32_Premultiplied);
    tile.fill(background);
    QPainter painter(&tile);
    painter.fillRect(0, 0, size, size, color);
    painter.fillRect(size, size, size, size, color);
    return QBrush(tile);
}
} // namespace

/// The image as it is drawn by a QPainter.
class ResizedImage::Drawn : public velm::IResizeableImage
{
public:
    Drawn(const ResizedImage& item, double pixelRatio) : m_item(item), m_pixelRatio(pixelRatio) {}

    QSize getSize() const override { return m_item.m_image.size(); }
    double getZoom(double, double) const override { return m_item.m_zoom; }
    void draw(void* context, const velm::ResizeRectangles& rectangles) override
    {
        // What is less than a pixel wide isn't seen.
        if (!rectangles.source.isValid() || !rectangles.destination.isValid())
            return;
        QPainter& painter = *static_cast<QPainter*>(context);
        const int square = qRound(m_item.m_chequer * m_pixelRatio);
        if (square > 0 && m_item.m_image.hasAlphaChannel()) {
            painter.setBrushOrigin(rectangles.destination.topLeft());
            painter.fillRect(rectangles.destination,
                             chequerBrush(square, m_item.m_chequerColor, m_item.m_chequerBackground));
        }
        const QImage& image = m_item.m_image;
        const QImage part = rectangles.source == image.rect() ? image : image.copy(rectangles.source);
        const Qt::TransformationMode scaling = m_item.smooth() ? Qt::SmoothTransformation : Qt::FastTransformation;
        painter.drawImage(rectangles.destination.topLeft(),
                          part.scaled(rectangles.destination.size(), Qt::IgnoreAspectRatio, scaling));
    }

private:
    const ResizedImage& m_item;
    double m_pixelRatio;
};

ResizedImage::ResizedImage(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &QQuickItem::smoothChanged, this, &QQuickItem::polish);
}

ResizedImage::~ResizedImage() = default;

void ResizedImage::setImage(const QImage& image)
{
    m_image = image;
    // Its size may come from somewhere else, with a ratio that has no meaning here.
    m_image.setDevicePixelRatio(1.0);
    takeSize();
    polish();
    Q_EMIT imageChanged();
}

void ResizedImage::setMode(Mode mode)
{
    if (std::exchange(m_mode, mode) == mode)
        return;
    polish();
    Q_EMIT modeChanged();
}

void ResizedImage::setZoom(double zoom)
{
    if (!(zoom > 0.0) || std::exchange(m_zoom, zoom) == zoom)
        return;
    polish();
    Q_EMIT zoomChanged();
}

void ResizedImage::setChequer(int size)
{
    if (std::exchange(m_chequer, size) == size)
        return;
    polish();
    Q_EMIT chequerChanged();
}

void ResizedImage::setChequerColor(const QColor& color)
{
    if (std::exchange(m_chequerColor, color) == color)
        return;
    polish();
    Q_EMIT chequerColorChanged();
}

void ResizedImage::setChequerBackground(const QColor& color)
{
    if (std::exchange(m_chequerBackground, color) == color)
        return;
    polish();
    Q_EMIT chequerColorChanged();
}

QRect ResizedImage::wholeRect() const
{
    if (m_placing.isNull())
        return QRect();
    const QRect part(QPoint(), m_placing.destination.size());
    return velm::transformToDestinationOnlyRectangle(m_placing.source, part)
        .translated(m_placing.destination.topLeft());
}

double ResizedImage::pixelRatio() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1.0;
}

void ResizedImage::takeSize()
{
    setImplicitSize(m_image.width() / pixelRatio(), m_image.height() / pixelRatio());
}

void ResizedImage::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        polish();
    update();
}

void ResizedImage::itemChange(ItemChange change, const ItemChangeData& data)
{
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        takeSize();
        polish();
    }
    QQuickItem::itemChange(change, data);
}

void ResizedImage::updatePolish()
{
    const double ratio = pixelRatio();
    const QSize pixels = (size() * ratio).toSize();
    Drawn image(*this, ratio);
    const QRect all(QPoint(), pixels);
    const auto mode = static_cast<velm::EImageResizeMode>(m_mode);
    m_drawn = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    if (!m_drawn.isNull()) {
        m_drawn.fill(Qt::transparent);
        QPainter painter(&m_drawn);
        velm::drawResizedImage(&image, &painter, all, mode);
    }
    m_placing = velm::computeResizedImageRectangles(&image, all, mode);
    update();
    Q_EMIT placed();
}

QSGNode* ResizedImage::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    if (m_drawn.isNull()) {
        delete node;
        return nullptr;
    }
    auto* picture = static_cast<QSGImageNode*>(node);
    if (!picture) {
        picture = window()->createImageNode();
        picture->setOwnsTexture(true);
        // Pixel upon pixel.
        picture->setFiltering(QSGTexture::Nearest);
    }
    const double ratio = pixelRatio();
    picture->setTexture(window()->createTextureFromImage(m_drawn));
    picture->setSourceRect(QRectF(m_drawn.rect()));
    const QPointF corner = mapToScene(QPointF()) * ratio;
    const QPointF toWholePixel = (QPointF(corner.toPoint()) - corner) / ratio;
    picture->setRect(QRectF(toWholePixel, QSizeF(m_drawn.size()) / ratio));
    return picture;
}
} // namespace velmqml
