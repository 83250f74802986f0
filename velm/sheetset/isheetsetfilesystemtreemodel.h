#pragma once

#include "velm/velm_export.h"

#include <QStringList>

namespace velm {
/// What the host knows of model views. The order of the operations is part of the interface.
class VELM_EXPORT ISheetSetFileSystemTreeModel
{
public:
    virtual ~ISheetSetFileSystemTreeModel();

    /// Whether a model view may be dropped on what it is over.
    virtual bool isModelViewDropValid() = 0;
    virtual QList<QString> getModelViewNames(const QString& drawingPath) = 0;
};
} // namespace velm
