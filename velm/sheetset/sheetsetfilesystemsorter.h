#pragma once

#include "velm/table/sorter.h"

#include <QCollator>

namespace velm {
class SheetSetFileSystemTreeModel;

/// Folders before everything else, then by name, with numbers by their value and without regard to case.
class VELM_EXPORT SheetSetFileSystemSorter : public Sorter
{
    Q_OBJECT
public:
    /// The model is not owned; null throws an OdError.
    explicit SheetSetFileSystemSorter(SheetSetFileSystemTreeModel* model);
    ~SheetSetFileSystemSorter() override;

    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    SheetSetFileSystemTreeModel* m_model; // not owned
    QCollator m_collator;
};
} // namespace velm
