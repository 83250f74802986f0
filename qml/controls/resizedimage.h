#pragma once

#include "velm/images/imageresizing.h"

#include <QColor>
#include <QImage>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace velmqml {
/// An image placed in the item by one of the modes of velm's image placing. The placing is computed in pixels of the
/// screen, so that nothing is blurred by its scale; where image and place have the same size, the image's own pixels
/// are seen, as they are at the item's implicit size. With `smooth` set what is scaled is scaled smoothly.
class ResizedImage : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(Mode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    Q_PROPERTY(int chequer READ chequer WRITE setChequer NOTIFY chequerChanged)
    Q_PROPERTY(QColor chequerColor READ chequerColor WRITE setChequerColor NOTIFY chequerColorChanged)
    Q_PROPERTY(QColor chequerBackground READ chequerBackground WRITE setChequerBackground NOTIFY chequerColorChanged)
    Q_PROPERTY(QRect sourceRect READ sourceRect NOTIFY placed)
    Q_PROPERTY(QRect destinationRect READ destinationRect NOTIFY placed)
    Q_PROPERTY(QRect wholeRect READ wholeRect NOTIFY placed)
public:
    enum Mode
    {
        Stretch = static_cast<int>(velm::EImageResizeMode::Stretch),
        Fit = static_cast<int>(velm::EImageResizeMode::Fit),
        Fill = static_cast<int>(velm::EImageResizeMode::Fill),
        Zoom = static_cast<int>(velm::EImageResizeMode::Zoom),
    };
    Q_ENUM(Mode)

    explicit ResizedImage(QQuickItem* parent = nullptr);
    ~ResizedImage() override;

    const QImage& image() const { return m_image; }
    void setImage(const QImage& image);
    Mode mode() const { return m_mode; }
    void setMode(Mode mode);
    /// Of the mode Zoom: how many pixels of the image a pixel of the screen shows; above 0.
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    /// The size of the squares below an image that lets something through, in logical pixels; 0 for none.
    int chequer() const { return m_chequer; }
    void setChequer(int size);
    QColor chequerColor() const { return m_chequerColor; }
    void setChequerColor(const QColor& color);
    QColor chequerBackground() const { return m_chequerBackground; }
    void setChequerBackground(const QColor& color);

    // What the last frame showed, in pixels; null when nothing is shown.
    QRect sourceRect() const { return m_placing.source; }
    QRect destinationRect() const { return m_placing.destination; }
    /// Where the whole image would lie for its part to lie where it does.
    QRect wholeRect() const;

Q_SIGNALS:
    void imageChanged();
    void modeChanged();
    void zoomChanged();
    void chequerChanged();
    void chequerColorChanged();
    void placed();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    class Drawn;

    double pixelRatio() const;
    void takeSize();

    QImage m_image;
    Mode m_mode = Fit;
    double m_zoom = 1.0;
    int m_chequer = 0;
    QColor m_chequerColor = Qt::lightGray;
    QColor m_chequerBackground = Qt::white;
    velm::ResizeRectangles m_placing;
    QImage m_drawn; // all of the item, in pixels of the screen
};
} // namespace velmqml
