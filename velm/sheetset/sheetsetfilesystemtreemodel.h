#pragma once

#include "velm/sheetset/filesystemtreemodel.h"
#include "velm/sheetset/isheetsetfilesystemtreedata.h"
#include "velm/sheetset/isheetsetfilesystemtreemodel.h"

#include <unordered_map>

namespace velm {
extern template class VELM_EXPORT FileSystemTreeModel<ISheetSetFileSystemTreeData>;

/// Folders, drawings and the model views in drawings. A model view has the path of its drawing with its own name
/// behind. The host derives its model from this one.
class VELM_EXPORT SheetSetFileSystemTreeModel : public FileSystemTreeModel<ISheetSetFileSystemTreeData>,
                                                public ISheetSetFileSystemTreeModel
{
    Q_OBJECT
public:
    enum Role
    {
        PathRole = Qt::UserRole, ///< without a name in QML
        DragValidRole,
        DropValidRole,
        IconRole,
    };

    SheetSetFileSystemTreeModel(std::unique_ptr<IFileSystem> fileSystem, std::unique_ptr<IFileSystemWatcher> watcher);
    ~SheetSetFileSystemTreeModel() override;

    bool isDrawing(const QString& path) const;
    /// Whether the path is below a file with ".dwg" at the end of its name, in lower case.
    bool isModelView(const QString& path) const;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant dataImpl(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> customRoleNames() const override;
    /// Null for an invalid index.
    const ISheetSetFileSystemTreeData* node(const QModelIndex& index) const { return nodeAt(index); }

    using TreeModelBase::restoreExpandedState;
    using TreeModelBase::saveExpandedState;
    /// The paths of the expanded nodes by their content ids.
    void saveExpandedState(std::unordered_map<unsigned long long, QString>& expanded);
    /// Opens the directories of these paths and expands the nodes with these ids.
    void restoreExpandedState(const std::unordered_map<unsigned long long, QString>& expanded);

    QModelIndex appendItem(const QModelIndex& parent, const QString& path) override;
};
} // namespace velm
