#include "icons.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

namespace velmqml {
namespace {
QUrl toDataUrl(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return {};
    return QUrl(QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64()));
}
} // namespace

QUrl Icons::source(const QVariant& icon) const
{
    if (icon.metaType() == QMetaType::fromType<QImage>())
        return toDataUrl(icon.value<QImage>());
    const QString name = icon.toString();
    if (name.isEmpty())
        return {};
    if (name.startsWith(QLatin1Char('/')))
        return QUrl::fromLocalFile(name);
    const bool hasFolder = name.contains(QLatin1Char('/')) || name.contains(QLatin1Char(':'));
    const QUrl url(hasFolder ? name : QStringLiteral("qrc:/toolicons/") + name);
    if (url.scheme() == QLatin1String("qrc") && !QFile::exists(QLatin1Char(':') + url.path()))
        return {};
    return url;
}
} // namespace velmqml
