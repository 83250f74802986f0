#include "velm/sheetset/sheetsetnodes.h"

namespace velm {
namespace {
QString fileName(const QString& path)
{
    return QFileInfo(path).fileName();
}
} // namespace

ISheetSetFileSystemTreeData::~ISheetSetFileSystemTreeData() = default;
ISheetSetFileSystemTreeModel::~ISheetSetFileSystemTreeModel() = default;

FolderData::FolderData(const QString& path, FileSystemTreeModel<ISheetSetFileSystemTreeData>& model)
    : m_path(path), m_model(model)
{}

QList<QString> FolderData::fetchChildren()
{
    m_canFetchMore = false;
    m_model.watcher()->addPath(m_path);
    return m_model.fileSystem()->browseDirectory(m_path, m_model.nameFilters(),
                                                 FileSystemTreeModel<ISheetSetFileSystemTreeData>::entryFilters);
}

QString FolderData::icon() const
{
    return QStringLiteral("folder.svg");
}

QString FolderData::name() const
{
    return fileName(m_path);
}

QString FolderData::tooltip() const
{
    const QModelIndex index = m_model.index(m_path);
    return index.isValid() && !index.parent().isValid() ? m_path : QString();
}

DrawingData::DrawingData(const QString& path, const QList<QString>& modelViewNames)
    : m_path(path), m_modelViewNames(modelViewNames)
{}

QList<QString> DrawingData::fetchChildren()
{
    m_canFetchMore = false;
    QList<QString> paths;
    for (const QString& name : m_modelViewNames)
        paths.append(QDir(m_path).filePath(name));
    return paths;
}

QString DrawingData::icon() const
{
    return QStringLiteral("dwg.svg");
}

QString DrawingData::name() const
{
    const QString name = fileName(m_path);
    return m_modelViewNames.isEmpty() ? name
                                      : QStringLiteral("%1 (%2)").arg(name, QString::number(m_modelViewNames.size()));
}

ModelViewData::ModelViewData(const QString& path, ISheetSetFileSystemTreeModel& model) : m_path(path), m_model(model)
{}

QString ModelViewData::icon() const
{
    return QStringLiteral("sheetset-view.svg");
}

QString ModelViewData::name() const
{
    return fileName(m_path);
}

QString ModelViewData::tooltip() const
{
    return QObject::tr("Drag the model view to the drawing area");
}
} // namespace velm
