#include "velm/images/imageresizing.h"

#include <algorithm>

namespace velm {
namespace {
/// Toward zero; what a whole number can't hold is cut so that sums of two still fit.
int truncated(double value)
{
    constexpr double most = 1e9;
    return value > -most ? static_cast<int>(std::min(value, most)) : static_cast<int>(-most);
}

/// By its inclusive corners.
QRect corners(double left, double top, double right, double bottom)
{
    return QRect(QPoint(truncated(left), truncated(top)), QPoint(truncated(right), truncated(bottom)));
}

/// The middle of a length where another one stands in it; the beginning where that is longer.
double centred(double inner, double outer)
{
    return outer > inner ? (outer - inner) * 0.5 : 0.0;
}
} // namespace

IResizeableImage::~IResizeableImage() = default;

ResizeRectangles computeResizedImageRectangles(IResizeableImage* image, const QRect& destination, EImageResizeMode mode)
{
    if (image == nullptr)
        return ResizeRectangles();
    const QSize size = image->getSize();
    const double iw = size.width();
    const double ih = size.height();
    const double dw = destination.width();
    const double dh = destination.height();
    const double imageAspect = iw / ih;
    const double destinationAspect = dw / dh;
    const double zoom = image->getZoom(imageAspect, destinationAspect);
    if (!(iw > 0.0 && ih > 0.0 && dw > 0.0 && dh > 0.0))
        return ResizeRectangles();

    const bool isWider = imageAspect > destinationAspect;
    ResizeRectangles result{corners(0.0, 0.0, iw - 1.0, ih - 1.0), corners(0.0, 0.0, dw - 1.0, dh - 1.0)};
    switch (mode) {
    case EImageResizeMode::Fit: {
        const double scale = isWider ? dw / iw : dh / ih;
        const double w = iw * scale;
        const double h = ih * scale;
        const double left = (dw - w) * 0.5;
        const double top = (dh - h) * 0.5;
        result.destination = corners(left, top, left - 1.0 + w, top - 1.0 + h);
        break;
    }
    case EImageResizeMode::Fill: {
        const double scale = isWider ? dh / ih : dw / iw;
        const double sw = dw / scale;
        const double sh = dh / scale;
        const double left = (iw - sw) * 0.5;
        const double top = (ih - sh) * 0.5;
        result.source = corners(left, top, left + sw - 1.0, top + sh - 1.0);
        break;
    }
    case EImageResizeMode::Zoom: {
        const double sw = zoom * dw;
        const double sh = zoom * dh;
        const double sourceLeft = centred(sw, iw);
        const double sourceTop = centred(sh, ih);
        result.source =
            corners(sourceLeft, sourceTop, sourceLeft + std::min(iw, sw) - 1.0, sourceTop + std::min(ih, sh) - 1.0);
        const double w = iw / zoom;
        const double h = ih / zoom;
        const double left = centred(w, dw);
        const double top = centred(h, dh);
        result.destination = corners(left, top, left + std::min(dw, w) - 1.0, top + std::min(dh, h) - 1.0);
        break;
    }
    case EImageResizeMode::Stretch:
        break;
    }
    result.destination.translate(destination.topLeft());
    return result;
}

void drawResizedImage(IResizeableImage* image, void* context, const QRect& destination, EImageResizeMode mode)
{
    const ResizeRectangles rectangles = computeResizedImageRectangles(image, destination, mode);
    if (!rectangles.isNull())
        image->draw(context, rectangles);
}

QRect transformToDestinationOnlyRectangle(const QRect& source, const QRect& destination)
{
    if (source.left() < 1 && source.top() < 1)
        return destination;
    const double k = static_cast<double>(destination.height()) / source.height();
    const int left = truncated(source.left() * -k);
    const int top = truncated(source.top() * -k);
    const int right = truncated((double(source.left()) + source.right() + 1.0) * k) - 1 + left;
    const int bottom = truncated((double(source.top()) + source.bottom() + 1.0) * k) - 1 + top;
    return QRect(QPoint(left, top), QPoint(right, bottom));
}
} // namespace velm
