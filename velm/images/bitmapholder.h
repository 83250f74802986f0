#pragma once

#include "velm/velm_export.h"

#include <memory>

class QImage;
class wxBitmap;

namespace velm {
/// A picture in the form of either toolkit, or of both.
class VELM_EXPORT BitmapHolder
{
public:
    /// Both forms null.
    BitmapHolder();
    /// An empty host bitmap of size by size pixels; null for a size below 1.
    explicit BitmapHolder(int size);
    explicit BitmapHolder(const wxBitmap& bitmap);
    explicit BitmapHolder(const QImage& image);
    BitmapHolder(BitmapHolder&&) noexcept;
    BitmapHolder& operator=(BitmapHolder&&) noexcept;
    ~BitmapHolder();

    wxBitmap& bitmapWx();
    const wxBitmap& bitmapWx() const;
    QImage& bitmapQt();
    const QImage& bitmapQt() const;
    /// The width of the host bitmap in pixels; 0 without one.
    int getSize() const;
    bool hasQtImage() const;
    bool hasWxBitmap() const;
    /// Turns the host bitmap into a Qt image, unless there is one, and lets go of it. False when there is neither.
    bool convertToQt();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
