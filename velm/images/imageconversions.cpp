#include "velm/images/imageconversions.h"

#include <QImage>

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>

#include <cstdlib>

namespace velm {
namespace {
unsigned char* allocated(std::size_t bytes)
{
    // The wxImage frees it.
    return static_cast<unsigned char*>(std::malloc(bytes));
}

unsigned char straight(int channel, int alpha)
{
    return static_cast<unsigned char>((static_cast<uint>(channel) * qt_inv_premul_factor[alpha] + 32768) >> 16);
}

/// A copy whose pixels are 32 bits wide.
QImage wide(const QImage& image)
{
    if (image.depth() == 32)
        return image;
    const bool plain = image.depth() == 1 || !image.hasAlphaChannel();
    return image.convertToFormat(plain ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
}
} // namespace

wxImage convertImage(const QImage& image)
{
    const QImage source = wide(image);
    if (source.isNull())
        return wxImage();
    const std::size_t pixels = static_cast<std::size_t>(source.width()) * static_cast<std::size_t>(source.height());
    unsigned char* const rgb = allocated(pixels * 3);
    unsigned char* const alpha = source.hasAlphaChannel() ? allocated(pixels) : nullptr;
    unsigned char* nextColour = rgb;
    unsigned char* nextAlpha = alpha;
    for (int y = 0; y < source.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            const QRgb pixel = line[x];
            const int opacity = alpha ? qAlpha(pixel) : 255;
            for (const int channel : {qRed(pixel), qGreen(pixel), qBlue(pixel)})
                *nextColour++ = opacity < 255 ? straight(channel, opacity) : static_cast<unsigned char>(channel);
            if (alpha)
                *nextAlpha++ = static_cast<unsigned char>(opacity);
        }
    }
    return wxImage(source.width(), source.height(), rgb, alpha);
}

QImage convertImage(const wxImage& image)
{
    if (!image.IsOk())
        return QImage();
    const bool hasMask = image.HasMask();
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    if (hasMask)
        image.GetOrFindMaskColour(&red, &green, &blue);
    const QRgb maskColour = qRgba(red, green, blue, 0);
    const unsigned char* rgb = image.GetData();
    const unsigned char* alpha = image.GetAlpha();
    QImage result(image.GetWidth(), image.GetHeight(), alpha || hasMask ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x, rgb += 3) {
            const QRgb colour = qRgba(rgb[0], rgb[1], rgb[2], 0);
            QRgb pixel = colour | (alpha ? static_cast<QRgb>(*alpha++) << 24 : 0);
            // Added, also to an alpha that stands there already: this must stay.
            if (hasMask && colour != maskColour)
                pixel += 0xFF000000;
            line[x] = result.format() == QImage::Format_RGB32 ? pixel | 0xFF000000 : pixel;
        }
    }
    return result;
}

QImage convertIcon(const wxIcon& icon)
{
    return icon.IsOk() ? convertImage(wxBitmap(icon).ConvertToImage()) : QImage();
}

BitmapHolder convertQImageToWxBitmap(const QImage& image)
{
    const wxImage converted = convertImage(
        image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32));
    return converted.IsOk() ? BitmapHolder(wxBitmap(converted)) : BitmapHolder();
}

BitmapHolder convertWxBitmapToQImage(const wxBitmap& bitmap)
{
    return bitmap.IsOk() ? BitmapHolder(convertImage(bitmap.ConvertToImage())) : BitmapHolder();
}

BitmapHolder scaleBitmapUsingQImage(const wxBitmap& bitmap, int width, int height, bool keepAspectRatio)
{
    const BitmapHolder image = convertWxBitmapToQImage(bitmap);
    if (!image.hasQtImage())
        return BitmapHolder();
    const Qt::AspectRatioMode aspect = keepAspectRatio ? Qt::KeepAspectRatio : Qt::IgnoreAspectRatio;
    return convertQImageToWxBitmap(image.bitmapQt().scaled(width, height, aspect, Qt::SmoothTransformation));
}
} // namespace velm
