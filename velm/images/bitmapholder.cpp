#include "velm/images/bitmapholder.h"

#include "velm/images/imageconversions.h"

#include <QImage>

#include <wx/bitmap.h>
#include <wx/image.h>

namespace velm {
struct BitmapHolder::Pimpl
{
    wxBitmap bitmap;
    QImage image;
};

BitmapHolder::BitmapHolder() : m_pimpl(new Pimpl)
{}

BitmapHolder::BitmapHolder(int size) : m_pimpl(new Pimpl)
{
    if (size > 0)
        m_pimpl->bitmap.Create(size, size);
}

BitmapHolder::BitmapHolder(const wxBitmap& bitmap) : m_pimpl(new Pimpl{bitmap, QImage()})
{}

BitmapHolder::BitmapHolder(const QImage& image) : m_pimpl(new Pimpl{wxBitmap(), image})
{}

BitmapHolder::BitmapHolder(BitmapHolder&&) noexcept = default;
BitmapHolder& BitmapHolder::operator=(BitmapHolder&&) noexcept = default;
BitmapHolder::~BitmapHolder() = default;

wxBitmap& BitmapHolder::bitmapWx()
{
    return m_pimpl->bitmap;
}

const wxBitmap& BitmapHolder::bitmapWx() const
{
    return m_pimpl->bitmap;
}

QImage& BitmapHolder::bitmapQt()
{
    return m_pimpl->image;
}

const QImage& BitmapHolder::bitmapQt() const
{
    return m_pimpl->image;
}

int BitmapHolder::getSize() const
{
    return hasWxBitmap() ? m_pimpl->bitmap.GetWidth() : 0;
}

bool BitmapHolder::hasQtImage() const
{
    return !m_pimpl->image.isNull();
}

bool BitmapHolder::hasWxBitmap() const
{
    return m_pimpl->bitmap.IsOk();
}

bool BitmapHolder::convertToQt()
{
    if (hasQtImage())
        return true;
    if (!hasWxBitmap())
        return false;
    m_pimpl->image = convertImage(m_pimpl->bitmap.ConvertToImage());
    m_pimpl->bitmap = wxNullBitmap;
    return true;
}
} // namespace velm
