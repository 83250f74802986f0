#pragma once

#include "panels/recordtablemodel.h"

namespace workbench {
/// The dimension styles of a drawing under the names that users see, in which a style for one kind of dimension is told
/// from its parent. Sizes, decimals and the text style can be edited.
class DimStyleTableModel : public RecordTableModel
{
    Q_OBJECT
public:
    enum Column
    {
        NameColumn,
        TypeColumn,
        TextHeightColumn,
        ArrowSizeColumn,
        ScaleColumn,
        DecimalsColumn,
        TextStyleColumn,
    };

    explicit DimStyleTableModel(QObject* parent = nullptr);

protected:
    std::vector<OdDbObjectId> records(const OdDbDatabase& database) const override;
    QVariant shown(const OdDbSymbolTableRecord& record, int column) const override;
    ObjectField field(OdDbSymbolTableRecord& record, int column) const override;
    QString problem(const OdDbSymbolTableRecord& record, int column, const QVariant& value) const override;
};
} // namespace workbench
