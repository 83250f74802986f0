#include "velm/sheetset/fileutil.h"

#include <QFile>
#include <QTextStream>
#include <QUrl>

#include <iostream>

namespace velm {
QString FileUtil::readFile(const QString& fileName)
{
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QTextStream(&file).readAll();
    std::cerr << "Unable to open file '" << fileName.toStdString() << "' for reading" << std::endl;
    return {};
}

QString FileUtil::urlToLocalFile(const QUrl& url)
{
    return url.toLocalFile();
}
} // namespace velm
