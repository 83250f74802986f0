#pragma once

#include "openbranch.h"

#include <QAbstractListModel>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace velmqml {
/// The rows of a tree that are shown while some of its branches are open, as a flat list for a ListView. Whether a row
/// is open is kept by the tree, as a bool of role 8: it is read at the start, after a reset and when rows come, and
/// written when a row is opened or closed here. A tree that doesn't keep it forgets it at a reset. The roles are those
/// of the tree and "treeDepth", "treeOpen" and "treeBranch" (whether the row has children). Qt Quick's own TreeView
/// keeps the open rows to itself and loses them at a reset, and pages couldn't read 100000 of them anew through QML
/// quickly enough.
class TreeRows : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel* source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(QString textRole MEMBER m_textRole NOTIFY textRoleChanged)
    Q_PROPERTY(QVariant currentIndex READ currentVariant WRITE setCurrentVariant NOTIFY currentIndexChanged)
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentRowChanged)
public:
    enum Role
    {
        DepthRole = Qt::UserRole + 0x10000,
        OpenRole,
        BranchRole,
    };
    Q_ENUM(Role)

    explicit TreeRows(QObject* parent = nullptr);
    ~TreeRows() override;

    QAbstractItemModel* source() const { return m_source; }
    void setSource(QAbstractItemModel* source);
    /// An index of the tree. It follows its row; when that is removed, a neighbour or the parent takes its place.
    QModelIndex currentIndex() const { return m_current; }
    /// Opens what hides the row.
    void setCurrentIndex(const QModelIndex& index);
    /// -1: none.
    int currentRow() const { return m_currentRow; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Invalid for a row that doesn't exist.
    Q_INVOKABLE QModelIndex indexAt(int row) const;
    /// -1 for an index that isn't shown.
    Q_INVOKABLE int rowOf(const QModelIndex& index) const;
    /// A row without children can't be opened.
    Q_INVOKABLE void setOpen(int row, bool open);
    Q_INVOKABLE void openAll();
    /// The first row from this one on, round the end, whose text begins with the letters; -1 when none does.
    Q_INVOKABLE int find(const QString& letters, int first) const;

Q_SIGNALS:
    void sourceChanged();
    void textRoleChanged();
    void currentIndexChanged();
    void currentRowChanged();

private:
    // As QVariants, since the tools know no QModelIndex; another value than one is none.
    QVariant currentVariant() const { return currentIndex(); }
    void setCurrentVariant(const QVariant& index) { setCurrentIndex(index.toModelIndex()); }
    void connectSource();
    void load();
    /// Fetches what is below open rows and isn't there yet.
    void fetchOpen();
    std::unique_ptr<OpenBranch> makeBranch(const QModelIndex& index);
    /// Null when the index or a row above it isn't open.
    OpenBranch* findBranch(const QModelIndex& index) const;
    QModelIndex toIndex(const OpenBranch& branch) const;
    bool isOpen(const QModelIndex& index) const;
    void apply(const QModelIndex& index, bool open);
    void openParents(const QModelIndex& index);
    void openBelow(const QModelIndex& parent);
    void noteCurrent();
    void signalBranch(const QModelIndex& index);

    void onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles);
    void onRowsAboutToBeInserted(const QModelIndex& parent, int first, int last);
    void onRowsInserted(const QModelIndex& parent, int first, int last);
    void onRowsAboutToBeRemoved(const QModelIndex& parent, int first, int last);
    void onRowsRemoved(const QModelIndex& parent, int first, int last);
    void beginReset();
    void endReset();

    QPointer<QAbstractItemModel> m_source;
    std::unique_ptr<OpenBranch> m_root;
    QString m_textRole = QStringLiteral("display");
    QList<QPersistentModelIndex> m_unfetched; // open branches
    QPersistentModelIndex m_current;
    int m_currentRow = -1;
    bool m_resetting = false;
    bool m_hadCurrent = false; ///< before the reset
};
} // namespace velmqml
