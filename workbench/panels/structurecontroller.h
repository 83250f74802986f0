#pragma once

#include "od/odapdocmanager.h"
#include "panels/selectionmenu.h"
#include "panels/structuremodel.h"
#include "velm/models/panelmenumodel.h"

#include <QPersistentModelIndex>

#include <functional>

namespace workbench {
class Selection;

/// What the page of the drawing's structure talks to: the tree, its current row, and the menu of the panel's title,
/// and what can be done with the selected entity. The current row and the selected entity follow each other.
class StructureController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* tree READ tree CONSTANT)
    Q_PROPERTY(QAbstractItemModel* menu READ menu CONSTANT)
    Q_PROPERTY(QAbstractItemModel* actions READ actions CONSTANT)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY drawingChanged)
    Q_PROPERTY(QModelIndex currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
public:
    /// Both outlive the controller.
    StructureController(OdApDocManager& documents, Selection& selection);
    ~StructureController() override;

    StructureModel* tree() { return &m_tree; }
    velm::PanelMenuModel* menu() { return &m_menu; }
    SelectionMenu* actions() { return &m_actions; }
    bool hasDrawing() const { return m_documents.curDocument() != nullptr; }
    QModelIndex currentIndex() const { return m_current; }
    void setCurrentIndex(const QModelIndex& index);
    /// What the current row stands for; null for a group and without a current row.
    OdDbObjectId currentObject() const;

    /// To call after a change of the drawing.
    void refresh();

    std::function<void(const QModelIndex&)> onBranchWanted; ///< the user went into a row

public Q_SLOTS:
    /// The user chose a row by Enter or a double click: a row that sums up makes room for more of what it stands for,
    /// and a row that may have children is wanted as a branch.
    void activate(const QModelIndex& index);

Q_SIGNALS:
    void drawingChanged();
    void currentIndexChanged();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    void rebuild();
    /// Runs something that resets the tree, and finds the current row again.
    void keepCurrent(const std::function<void()>& change);
    void collapseAll();
    void followSelection();
    void moveTo(const QModelIndex& index);
    void fillMenu();
    void refreshMenu();

    OdApDocManager& m_documents;
    Selection& m_selection;
    StructureModel m_tree;
    velm::PanelMenuModel m_menu;
    SelectionMenu m_actions;
    QPersistentModelIndex m_current;
    bool m_isRebuilding = false;
};
} // namespace workbench
