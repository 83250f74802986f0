#pragma once

#include "od/oddbdatabase.h"
#include "panels/objectfields.h"
#include "velm/table/columns.h"

#include <QAbstractTableModel>

namespace workbench {
/// The records of one of a drawing's tables, a row each, which are edited in place. Records that come and go while the
/// drawing is open come and go as rows.
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Role
    {
        ChoicesRole = Qt::UserRole, ///< "choices": texts, of which Qt::EditRole is the index
    };

    /// Not owned; null for no rows.
    void setDatabase(OdDbDatabase* database);
    OdDbDatabase* database() const { return m_database; }
    /// To call after a change of the drawing. True when rows were added.
    bool refresh();
    /// Null for a row that isn't there, and for a record that is gone.
    OdDbSymbolTableRecord* record(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// The drawing was changed through the table.
    void edited();
    /// A value can't be given, and why.
    void refused(const QString& reason);

protected:
    explicit RecordTableModel(velm::Columns columns, QObject* parent = nullptr);

    virtual std::vector<OdDbObjectId> records(const OdDbDatabase& database) const = 0;
    /// What can be known only from the whole drawing; called whenever that has changed.
    virtual void survey(const OdDbDatabase&) {}
    /// What Qt::DisplayRole shows and rows are sorted by.
    virtual QVariant shown(const OdDbSymbolTableRecord& record, int column) const = 0;
    /// The value as an editor takes it, and how another is given; without `apply` it is only to be read.
    virtual ObjectField field(OdDbSymbolTableRecord& record, int column) const = 0;
    /// What is wrong with a value of the field's type; empty when it may be given.
    virtual QString problem(const OdDbSymbolTableRecord&, int /*column*/, const QVariant& /*value*/) const
    {
        return {};
    }
    virtual QVariant decoration(const OdDbSymbolTableRecord&, int /*column*/) const { return {}; }

private:
    bool isCheck(int column) const;
    bool insertMissing();

    const velm::Columns m_columns;
    OdDbDatabase* m_database = nullptr; // not owned
    std::vector<OdDbObjectId> m_records;
};
} // namespace workbench
