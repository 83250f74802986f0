#pragma once

#include "velm/velm_export.h"

#include <QRect>

namespace velm {
/// How an image is placed in a rectangle of another shape. Any other value is as Stretch.
enum class EImageResizeMode : int
{
    Stretch = 0, ///< the whole image onto the whole rectangle
    Fit = 1,     ///< the whole image with its aspect, centred
    Fill = 2,    ///< the whole rectangle covered, the image cropped at its centre
    Zoom = 3,    ///< at the image's own zoom, centred on both sides
};

/// Which part of an image goes where, in pixels of either.
struct VELM_EXPORT ResizeRectangles
{
    QRect source;
    QRect destination;

    /// Whether either is.
    bool isNull() const { return source.isNull() || destination.isNull(); }
};

/// An image that can be drawn in parts.
class VELM_EXPORT IResizeableImage
{
public:
    virtual ~IResizeableImage();
    virtual QSize getSize() const = 0;
    /// Of the placing mode Zoom; aspects are width by height.
    virtual double getZoom(double imageAspect, double destinationAspect) const = 0;
    /// `context` is the caller's, handed on untouched.
    virtual void draw(void* context, const ResizeRectangles& rectangles) = 0;
};

/// Null rectangles for a null image, and when image or destination has no area.
VELM_EXPORT ResizeRectangles computeResizedImageRectangles(IResizeableImage* image, const QRect& destination,
                                                           EImageResizeMode mode);
/// Draws nothing when either rectangle is null.
VELM_EXPORT void drawResizedImage(IResizeableImage* image, void* context, const QRect& destination,
                                  EImageResizeMode mode);
/// Where to draw the whole image so that its part `source` lands on `destination`. For a part that doesn't begin in the
/// image's corner the result is relative to (0, 0), wherever the destination is, and scaled by the heights alone.
VELM_EXPORT QRect transformToDestinationOnlyRectangle(const QRect& source, const QRect& destination);
} // namespace velm
