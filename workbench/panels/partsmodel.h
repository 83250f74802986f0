#pragma once

#include "velm/table/columns.h"

#include <QAbstractTableModel>

#include <vector>

namespace workbench {
/// A long list of made-up parts, to see how a table does with many rows. The same row is always the same part. The
/// marks of the parts can be set; nothing is stored. Qt::EditRole gives what to sort by.
class PartsModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column
    {
        NumberColumn,
        NameColumn,
        ValueColumn,
        SizeColumn,
        DateColumn,
        CheckedColumn,
        ColumnCount
    };

    explicit PartsModel(QObject* parent = nullptr);

    void clear();
    /// Adds parts at the end.
    void append(int count);
    /// The text of the name's column.
    QString name(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    /// Small: there are a million of them. Texts are made when they are asked for.
    struct Part
    {
        double value;
        int size; ///< bytes
        int day;  ///< since the first one
        int family;
        short variant;
        bool checked;
    };

    static Part makePart(int row);
    QString sizeText(int bytes) const;

    velm::Columns m_columns;
    // Units of file sizes.
    QString m_kb;
    QString m_mb;
    std::vector<Part> m_parts;
};
} // namespace workbench
