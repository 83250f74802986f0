#pragma once

#include "velm/images/imageresizing.h"

#include <QImage>
#include <QPainter>

/// A picture that a QPainter draws.
class PlacedPicture : public velm::IResizeableImage
{
public:
    explicit PlacedPicture(const QImage& image) : m_image(image) {}

    QSize getSize() const override { return m_image.size(); }
    /// Pixels of the picture a pixel of the place: twice as large, as far as it fits.
    double getZoom(double, double) const override { return 0.5; }
    void draw(void* context, const velm::ResizeRectangles& placing) override
    {
        static_cast<QPainter*>(context)->drawImage(placing.destination, m_image, placing.source);
    }

private:
    QImage m_image;
};

inline void drawPreview(const QImage& image, QPainter& painter, const QRect& place)
{
    PlacedPicture picture(image);
    velm::drawResizedImage(&picture, &painter, place, velm::EImageResizeMode::Fill);
}
