#pragma once

#include "linetypes/linetypefile.h"

#include <QAbstractTableModel>

namespace workbench {
/// The linetypes of a file, a row each, and whether a drawing has them.
class LineTypeTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column
    {
        NameColumn,
        LineColumn,
        DescriptionColumn,
        StateColumn,
        ColumnCount,
    };

    /// The drawing isn't owned and outlives the model.
    explicit LineTypeTableModel(const OdDbDatabase& database, QObject* parent = nullptr);

    void setLineTypes(std::vector<LineType> lineTypes);
    const LineType& lineType(int row) const { return m_lineTypes[static_cast<std::size_t>(row)]; }
    /// Without regard to case; -1 for none.
    int row(const QString& name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString state(const LineType& lineType) const;

    const OdDbDatabase& m_database;
    std::vector<LineType> m_lineTypes;
};
} // namespace workbench
