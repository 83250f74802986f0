#pragma once

#include "velm/images/bitmapholder.h"
#include "velm/velm_export.h"

class QImage;
class wxBitmap;
class wxIcon;
class wxImage;

/// Pictures of the two toolkits turned into one another. What is null stays null; none of these throws.
namespace velm {
/// The colours of a picture with alpha are taken for premultiplied, whatever its format says, and come out straight.
VELM_EXPORT wxImage convertImage(const QImage& image);
/// With an alpha channel when the picture has alpha or a mask. A mask makes all but its own colour opaque.
VELM_EXPORT QImage convertImage(const wxImage& image);
VELM_EXPORT QImage convertIcon(const wxIcon& icon);
/// Holds the host bitmap.
VELM_EXPORT BitmapHolder convertQImageToWxBitmap(const QImage& image);
/// Holds the Qt image.
VELM_EXPORT BitmapHolder convertWxBitmapToQImage(const wxBitmap& bitmap);
/// Scaled smoothly, in pixels; holds the host bitmap.
VELM_EXPORT BitmapHolder scaleBitmapUsingQImage(const wxBitmap& bitmap, int width, int height, bool keepAspectRatio);
} // namespace velm
