#pragma once

#include "od/odapdocmanager.h"
#include "panels/containsfilter.h"
#include "velm/table/sortfilterselectmodel.h"

#include <functional>
#include <memory>

namespace velm {
class IDialogFactory;
}

namespace workbench {
class RecordTableModel;

/// What the page of a table of records talks to: the current drawing's table, searched by a text, and edited. While
/// the table has rows, one of them is current.
class RecordTableController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(velm::SortFilterSelectModel* table READ table CONSTANT)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY drawingChanged)
public:
    ~RecordTableController() override;

    velm::SortFilterSelectModel* table() { return &m_table; }
    bool hasDrawing() const;
    /// Of the table; -1 for none.
    int currentRow() const { return m_table.selectionModel()->currentIndex().row(); }
    void setCurrentRow(int row);

    /// To call after a change of the drawing from elsewhere.
    void refresh();

    std::function<void()> onEdited; ///< the drawing was changed from the page

public Q_SLOTS:
    void setSearchText(const QString& text);

Q_SIGNALS:
    void drawingChanged();
    /// Another row is current, or another record is what the row shows.
    void currentRowChanged();

protected:
    /// The documents and the dialogs outlive the controller. The columns are kept under the name, and the search is in
    /// some of them.
    RecordTableController(OdApDocManager& documents, velm::IDialogFactory& dialogs,
                          std::unique_ptr<RecordTableModel> model, const QString& name, std::vector<int> searched);

    velm::IDialogFactory& dialogs() { return m_dialogs; }
    /// Of the drawing's table; -1 for none.
    int currentSourceRow() const;

private:
    void documentBecameCurrent(OdApDocument* document) override;
    void tellOfProblem(const QString& problem);
    void selectSome();

    OdApDocManager& m_documents;
    velm::IDialogFactory& m_dialogs;
    std::unique_ptr<RecordTableModel> m_model;
    ContainsFilter m_filter;
    velm::SortFilterSelectModel m_table;
};
} // namespace workbench
