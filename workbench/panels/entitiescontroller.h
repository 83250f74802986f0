#pragma once

#include "od/odapdocmanager.h"
#include "panels/entityfilter.h"
#include "panels/entitytablemodel.h"
#include "panels/selectionmenu.h"
#include "velm/table/sortfilterselectmodel.h"

namespace workbench {
class Selection;

/// What the page of the drawing's entities talks to: the table and a search in it. The selection of the table and that
/// of the drawing follow each other, by rows and by cells; whole columns are no selection of entities. Entities that
/// the search hides, and those that lie in too many pieces among the rows, stay selected in the drawing until something
/// else is selected.
class EntitiesController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(velm::SortFilterSelectModel* table READ table CONSTANT)
    Q_PROPERTY(QAbstractItemModel* actions READ actions CONSTANT)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY drawingChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
public:
    /// Both outlive the controller.
    EntitiesController(OdApDocManager& documents, Selection& selection);
    ~EntitiesController() override;

    velm::SortFilterSelectModel* table() { return &m_table; }
    EntityTableModel* entities() { return &m_entities; }
    SelectionMenu* actions() { return &m_actions; }
    bool hasDrawing() const { return m_entities.database() != nullptr; }
    QString searchText() const { return m_filter.text(); }
    /// Shows only entities of which a text contains this one, without regard to case; an empty text shows all.
    void setSearchText(const QString& text);
    /// How many entities are shown and selected.
    QString status() const;

    void setDarkBackground(bool dark) { m_entities.setDarkBackground(dark); }
    /// To call after a change of the drawing.
    void refresh();

public Q_SLOTS:
    /// Shows the selected entities on the canvas.
    void zoomToSelection();

Q_SIGNALS:
    void drawingChanged();
    void searchTextChanged();
    void statusChanged();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    /// Runs something that takes rows out of the table and its selection, and selects again what is selected.
    template <typename Change>
    void keepSelection(Change change);
    void tellSelection();
    void tellCurrent();
    OdDbObjectId currentInTable() const;
    /// Those of the table's selection, by rising id.
    std::vector<OdDbObjectId> selectedInTable() const;
    void followSelection();
    /// Selects the rows of these entities in the table, if others are selected there.
    void select(std::vector<std::pair<int, OdDbObjectId>> shown);
    bool selectsColumns() const;

    OdApDocManager& m_documents;
    Selection& m_selection;
    EntityTableModel m_entities;
    EntityFilter m_filter{m_entities};
    velm::SortFilterSelectModel m_table;
    SelectionMenu m_actions;
    bool m_isFollowing = false;
};
} // namespace workbench
