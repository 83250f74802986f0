#pragma once

#include "panels/layermodel.h"

#include <QSortFilterProxyModel>

#include <functional>

namespace velm {
class IDialogFactory;
}

namespace workbench {
/// What the page of layers talks to. Rows are those of the list that the page shows.
class LayersController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* layers READ layers CONSTANT)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY drawingChanged)
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged)
    Q_PROPERTY(bool canRename READ canRename NOTIFY currentRowChanged)
public:
    /// Neither is owned; both outlive the controller.
    LayersController(OdApDocManager& documents, velm::IDialogFactory& dialogs);
    ~LayersController() override;

    QAbstractItemModel* layers() { return &m_shown; }
    bool hasDrawing() const { return m_model.database() != nullptr; }
    int currentRow() const { return m_currentRow; }
    void setCurrentRow(int row);
    bool canRename() const;

    void setDarkBackground(bool dark) { m_model.setDarkBackground(dark); }

    /// To call after a change of layers from elsewhere.
    void refresh();

    std::function<void()> onLayersChanged; ///< layers are other than they were

public Q_SLOTS:
    void setOn(int row, bool on);
    /// Shows only layers whose names contain the text, without regard to case; an empty text shows all.
    void setSearchText(const QString& text);
    /// Asks for another name of the current layer until it is a good one or the person gives up.
    void renameCurrent();

Q_SIGNALS:
    void drawingChanged();
    void currentRowChanged();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    int sourceRow(int row) const;
    void tellOfChange();
    /// What is wrong with a name for the layer of a source row; empty when it may be given.
    QString nameProblem(const QString& name, int row) const;

    OdApDocManager& m_documents;
    velm::IDialogFactory& m_dialogs;
    LayerModel m_model;
    QSortFilterProxyModel m_shown;
    int m_currentRow = -1;
};
} // namespace workbench
