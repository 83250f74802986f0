#pragma once

#include "panels/recordtablemodel.h"

#include <map>

namespace workbench {
/// The layers of a drawing. The layer "0" keeps its name.
class LayerTableModel : public RecordTableModel
{
    Q_OBJECT
public:
    enum Column
    {
        NameColumn,
        OnColumn,
        FrozenColumn,
        LockedColumn,
        ColorColumn,
        LinetypeColumn,
        LineWeightColumn,
        PlotStyleColumn,
        DescriptionColumn,
        EntitiesColumn,
    };

    explicit LayerTableModel(QObject* parent = nullptr);

    /// The standard colour is white on a dark background and black on a light one.
    void setDarkBackground(bool dark);
    bool isRenamable(int row) const;
    /// What is wrong with a name for a layer; empty when it may be given.
    QString nameProblem(const OdDbSymbolTableRecord& layer, const QString& name) const;

protected:
    std::vector<OdDbObjectId> records(const OdDbDatabase& database) const override;
    void survey(const OdDbDatabase& database) override;
    QVariant shown(const OdDbSymbolTableRecord& record, int column) const override;
    ObjectField field(OdDbSymbolTableRecord& record, int column) const override;
    QString problem(const OdDbSymbolTableRecord& record, int column, const QVariant& value) const override;
    QVariant decoration(const OdDbSymbolTableRecord& record, int column) const override;

private:
    std::map<OdDbObjectId, int> m_entityCounts; // of all blocks
    bool m_darkBackground = true;
};
} // namespace workbench
