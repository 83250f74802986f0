#pragma once

#include "velm/sheetset/isheetsetfilesystemtreedata.h"

namespace velm {
class ISheetSetFileSystemTreeModel;
}

namespace workbench {
/// A layout in the tree of sheet sets, below its drawing.
class LayoutData : public velm::ISheetSetFileSystemTreeData
{
public:
    /// The model outlives the node.
    LayoutData(const QString& path, velm::ISheetSetFileSystemTreeModel& model);

    const QString& path() const override { return m_path; }
    bool hasChildren() const override { return false; }
    QList<QString> fetchChildren() override { return {}; }
    bool canFetchMore() const override { return false; }
    QString icon() const override;
    QString name() const override;
    QString tooltip() const override;
    bool dragValid() const override { return true; }
    bool dropValid() const override;
    bool isFolder() const override { return false; }

private:
    QString m_path;
    velm::ISheetSetFileSystemTreeModel& m_model;
};
} // namespace workbench
