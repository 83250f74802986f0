#include "ut/environment.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace ut {
static QByteArray local(const OdString& text)
{
    return QString::fromStdWString(text.wide()).toLocal8Bit();
}

OdString getEnvironment(const OdString& name)
{
    return qEnvironmentVariable(local(name).constData()).toStdWString();
}

void setEnvironment(const OdString& name, const OdString& value)
{
    qputenv(local(name).constData(), local(value));
}

OdString getExecutableFolder(bool withTrailingSlash)
{
#ifdef Q_OS_LINUX
    // Asked for before there is an application object.
    QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
#else
    QString folder = QCoreApplication::applicationDirPath();
#endif
    if (withTrailingSlash && !folder.endsWith(u'/'))
        folder += u'/';
    return folder.toStdWString();
}

OdString correctSlashes(const OdString& path)
{
    std::wstring result = path.wide();
#ifdef Q_OS_WIN
    std::replace(result.begin(), result.end(), L'/', L'\\');
#else
    std::replace(result.begin(), result.end(), L'\\', L'/');
#endif
    return result;
}
} // namespace ut
