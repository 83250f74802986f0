#pragma once

#include "velm/velm_export.h"

#include <QStringList>

namespace velm {
/// A node of the tree of sheet sets. The order of the operations is part of the interface.
class VELM_EXPORT ISheetSetFileSystemTreeData
{
public:
    virtual ~ISheetSetFileSystemTreeData();

    virtual const QString& path() const = 0;
    virtual bool hasChildren() const = 0;
    /// The paths of the children; they are fetched once.
    virtual QList<QString> fetchChildren() = 0;
    virtual bool canFetchMore() const = 0;
    virtual QString icon() const = 0;
    virtual QString name() const = 0;
    virtual QString tooltip() const = 0;
    virtual bool dragValid() const = 0;
    virtual bool dropValid() const = 0;
    virtual bool isFolder() const = 0;
};
} // namespace velm
