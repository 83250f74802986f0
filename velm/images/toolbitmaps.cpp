#include "velm/images/toolbitmaps.h"

#include "velm/bridge/conversions.h"
#include "velm/images/bitmaplookupsize.h"
#include "velm/images/imageconversions.h"

#include <QImage>
#include <QString>

#include <wx/bitmap.h>
#include <wx/xrc/xmlres.h>

namespace velm {
namespace {
QString pathOf(int size, const QString& folder, const QString& name)
{
    QString path = QStringLiteral(":/toolicons/%1/").arg(size);
    if (!folder.isEmpty())
        path += folder + '/';
    path += name;
    return name.endsWith(".png") ? path : path + ".png";
}

QString folderOf(ut::EGuiColorTheme theme)
{
    return theme == ut::EGuiColorTheme::Light ? "light" : "dark";
}

QString otherFolder(ut::EGuiColorTheme theme)
{
    return theme == ut::EGuiColorTheme::Dark || static_cast<int>(theme) == -1 ? "light" : "dark";
}

QImage loadToolBitmap(const QString& name, int size, bool tryDefault, ut::EGuiColorTheme theme)
{
    BitmapLookupSize sizes(size, 1.0);
    QImage image;
    int next = 0;
    do {
        next = sizes.getNextLoadSize();
        if (!image.load(pathOf(next, folderOf(theme), name)))
            image.load(pathOf(next, otherFolder(theme), name));
    } while (image.isNull() && next != -1);
    // In the folder of the size that the search ended with, so of -1: this must stay.
    if (image.isNull() && tryDefault)
        image.load(pathOf(next, folderOf(theme), "default"));
    return image;
}
} // namespace

BitmapHolder getQtToolBitmap(const QString& name, int size, bool tryDefault, ut::EGuiColorTheme theme)
{
    QImage image = loadToolBitmap(name, size, tryDefault, theme);
    if (!image.isNull() && image.width() != size)
        image = image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return BitmapHolder(image);
}

BitmapHolder getToolBitmap(const QString& name, int size, bool tryDefault, ut::EGuiColorTheme theme)
{
    const BitmapHolder holder = getQtToolBitmap(name, size, tryDefault, theme);
    return holder.hasQtImage() ? convertQImageToWxBitmap(holder.bitmapQt()) : BitmapHolder();
}

wxBitmap getToolBitmapFromID(const wxString& id)
{
    const wxString size = id.Mid(4, 2);
    if (size != "16" && size != "32" && size != "64")
        return wxXmlResource::Get()->LoadBitmap(id);
    const bool dark = id.EndsWith("_DARK");
    return getToolBitmap(toQt(id.Mid(7).Lower()), wxAtoi(size), false,
                         dark ? ut::EGuiColorTheme::Dark : ut::EGuiColorTheme::Light)
        .bitmapWx();
}
} // namespace velm
