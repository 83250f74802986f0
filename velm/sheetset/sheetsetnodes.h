#pragma once

#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

namespace velm {
class FolderData : public ISheetSetFileSystemTreeData
{
public:
    /// The model outlives the node.
    FolderData(const QString& path, FileSystemTreeModel<ISheetSetFileSystemTreeData>& model);

    const QString& path() const override { return m_path; }
    bool hasChildren() const override { return true; }
    /// Begins to watch the folder.
    QList<QString> fetchChildren() override;
    bool canFetchMore() const override { return m_canFetchMore; }
    QString icon() const override;
    QString name() const override;
    /// A root's path.
    QString tooltip() const override;
    bool dragValid() const override { return false; }
    bool dropValid() const override { return false; }
    bool isFolder() const override { return true; }

private:
    QString m_path;
    FileSystemTreeModel<ISheetSetFileSystemTreeData>& m_model;
    bool m_canFetchMore = true;
};

class DrawingData : public ISheetSetFileSystemTreeData
{
public:
    DrawingData(const QString& path, const QList<QString>& modelViewNames);

    const QString& path() const override { return m_path; }
    bool hasChildren() const override { return !m_modelViewNames.isEmpty(); }
    QList<QString> fetchChildren() override;
    bool canFetchMore() const override { return m_canFetchMore; }
    QString icon() const override;
    /// With the number of its model views behind.
    QString name() const override;
    QString tooltip() const override { return {}; }
    bool dragValid() const override { return false; }
    bool dropValid() const override { return false; }
    bool isFolder() const override { return false; }

private:
    QString m_path;
    QList<QString> m_modelViewNames;
    bool m_canFetchMore = true;
};

class ModelViewData : public ISheetSetFileSystemTreeData
{
public:
    /// The model outlives the node.
    ModelViewData(const QString& path, ISheetSetFileSystemTreeModel& model);

    const QString& path() const override { return m_path; }
    bool hasChildren() const override { return false; }
    QList<QString> fetchChildren() override { return {}; }
    bool canFetchMore() const override { return false; }
    QString icon() const override;
    QString name() const override;
    QString tooltip() const override;
    bool dragValid() const override { return true; }
    bool dropValid() const override { return m_model.isModelViewDropValid(); }
    bool isFolder() const override { return false; }

private:
    QString m_path;
    ISheetSetFileSystemTreeModel& m_model;
};
} // namespace velm
