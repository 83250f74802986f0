#pragma once

#include "panels/structuremodel.h"
#include "velm/models/prunedtreemodel.h"

#include <QStringList>

#include <vector>

namespace workbench {
class Selection;

/// What the page of one branch of the drawing's structure talks to: the rows below the branch, and the way that leads
/// to it. The branch is found again after the tree was filled anew; when it isn't there any more, the top level is
/// shown with a notice.
class BranchController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY branchChanged)
    Q_PROPERTY(QStringList crumbs READ crumbs NOTIFY branchChanged)
    Q_PROPERTY(QString notice READ notice NOTIFY branchChanged)
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged)
public:
    /// Both outlive the controller.
    BranchController(StructureModel& tree, Selection& selection);

    QAbstractItemModel* rows() { return &m_rows; }
    bool isEmpty() const { return m_rows.rowCount() == 0; }
    /// The texts of the rows down to the branch, the drawing's first.
    QStringList crumbs() const;
    /// Why another branch is shown than was chosen; mostly empty.
    QString notice() const { return m_notice; }
    int currentRow() const { return m_currentRow; }
    /// Selects the row's entity, if it stands for one.
    void setCurrentRow(int row);

    /// Shows the branch below a row of the tree; the invalid index stands for all of it.
    void show(const QModelIndex& index);

public Q_SLOTS:
    /// Down into a row that has children; an entity is selected.
    void enter(int row);
    /// To the branch that this one is in, with its row as the current one.
    void up();
    /// Up to one of the crumbs.
    void goTo(int crumb);

Q_SIGNALS:
    void branchChanged();
    void currentRowChanged();

private:
    void find();
    void moveTo(const QModelIndex& index, int currentRow);
    void showSelected();
    QModelIndex sourceIndex(int row) const;

    StructureModel& m_tree;
    Selection& m_selection;
    velm::PrunedTreeModel m_rows;
    std::vector<StructureRow> m_path; ///< down to the branch; empty for the top level
    QString m_branchText;
    QString m_notice;
    int m_currentRow = -1;
    bool m_isResetting = false;
};
} // namespace workbench
