#pragma once

#include "velm/velm_export.h"

#include <QString>

class QUrl;

namespace velm {
class VELM_EXPORT FileUtil
{
public:
    /// The text of a file. One that can't be opened gives an empty string and a line on the standard error stream.
    static QString readFile(const QString& fileName);
    static QString urlToLocalFile(const QUrl& url);
};
} // namespace velm
