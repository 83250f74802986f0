#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QUrl>
#include <QVariant>

namespace velmqml {
/// Finds what an Image can show of an icon that a model names.
class Icons : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// A name without a folder stands for a file below "qrc:/toolicons/", an absolute path for that file; a QImage is
    /// taken as it is. Empty for an empty icon and for a resource that doesn't exist.
    Q_INVOKABLE QUrl source(const QVariant& icon) const;
};
} // namespace velmqml
