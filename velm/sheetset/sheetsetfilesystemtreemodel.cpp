#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

#include "velm/sheetset/sheetsetnodes.h"

#include <unordered_set>

namespace velm {
template class FileSystemTreeModel<ISheetSetFileSystemTreeData>;

SheetSetFileSystemTreeModel::SheetSetFileSystemTreeModel(std::unique_ptr<IFileSystem> fileSystem,
                                                         std::unique_ptr<IFileSystemWatcher> watcher)
    : FileSystemTreeModel(std::move(fileSystem), std::move(watcher))
{}

SheetSetFileSystemTreeModel::~SheetSetFileSystemTreeModel() = default;

bool SheetSetFileSystemTreeModel::isDrawing(const QString& path) const
{
    return fileSystem()->isFile(path);
}

bool SheetSetFileSystemTreeModel::isModelView(const QString& path) const
{
    return QFileInfo(path).absolutePath().endsWith(QStringLiteral(".dwg"));
}

QModelIndex SheetSetFileSystemTreeModel::appendItem(const QModelIndex& parent, const QString& path)
{
    if (fileSystem()->isDirectory(path))
        return appendNode(parent, std::make_unique<FolderData>(path, *this));
    if (isDrawing(path))
        return appendNode(parent, std::make_unique<DrawingData>(path, getModelViewNames(path)));
    if (isModelView(path))
        return appendNode(parent, std::make_unique<ModelViewData>(path, *this));
    return {};
}

int SheetSetFileSystemTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant SheetSetFileSystemTreeModel::dataImpl(const QModelIndex& index, int role) const
{
    const ISheetSetFileSystemTreeData* data = node(index);
    if (data == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return data->name();
    case Qt::ToolTipRole:
        return data->tooltip();
    case PathRole:
        return data->path();
    case DragValidRole:
        return data->dragValid();
    case DropValidRole:
        return data->dropValid();
    case IconRole:
        return data->icon();
    default:
        return {};
    }
}

QHash<int, QByteArray> SheetSetFileSystemTreeModel::customRoleNames() const
{
    return {{DragValidRole, "dragValid"}, {DropValidRole, "dropValid"}, {IconRole, "icon"}};
}

void SheetSetFileSystemTreeModel::saveExpandedState(std::unordered_map<unsigned long long, QString>& expanded)
{
    expanded.clear();
    QList<QModelIndex> indexes;
    saveExpandedState(indexes);
    for (const QModelIndex& index : std::as_const(indexes))
        expanded.emplace(rowContentId(index), filePath(index));
}

void SheetSetFileSystemTreeModel::restoreExpandedState(const std::unordered_map<unsigned long long, QString>& expanded)
{
    std::unordered_set<unsigned long long> ids;
    for (const auto& [id, path] : expanded) {
        fetchDirectory(path);
        ids.insert(id);
    }
    restoreExpandedState(ids);
}
} // namespace velm
