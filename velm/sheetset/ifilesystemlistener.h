#pragma once

#include "velm/velm_export.h"

class QString;

namespace velm {
/// Hears of changes in watched directories.
class VELM_EXPORT IFileSystemListener
{
public:
    virtual ~IFileSystemListener();

    virtual void onDirectoryChanged(const QString& path) = 0;
};
} // namespace velm
