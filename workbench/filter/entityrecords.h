#pragma once

#include "filter/entityfilterproperties.h"
#include "od/oddbobjectid.h"
#include "panels/valuepool.h"

#include <array>
#include <map>
#include <optional>
#include <vector>

class OdDbDatabase;
class OdDbEntity;

namespace workbench {
/// What filters ask of entities, a column a property. A column of numbers holds NaN for an entity without the property;
/// any other one holds codes: 0 without the property, otherwise one more than the number of the value in the column's
/// pool.
class EntityRecords
{
public:
    using Property = EntityFilterProperties::Property;

    /// The entities of the model space that aren't erased, in the order of the drawing; null for none.
    void read(const OdDbDatabase* database);
    void append(const OdDbEntity& entity);

    const std::vector<OdDbObjectId>& ids() const { return m_ids; }
    const std::vector<double>& numbers(Property property) const { return m_columns[property].numbers; }
    const std::vector<int>& codes(Property property) const { return m_columns[property].codes; }
    const std::vector<QString>& texts(Property property) const { return m_columns[property].texts.values(); }
    /// Without the marks of case.
    const std::vector<QString>& foldedTexts(Property property) const { return m_columns[property].folded; }
    /// What a choice stands for: a number of EntityKind, a packed colour, a lineweight, 0 and 1 for false and true.
    const std::vector<int>& choices(Property property) const { return m_columns[property].choices.values(); }

private:
    struct Column
    {
        std::vector<double> numbers;
        std::vector<int> codes;
        TextPool texts;
        std::vector<QString> folded; // the same texts
        ValuePool<int> choices;
    };
    struct LayerCodes
    {
        int name = 0;
        int description = 0;
        int visible = 0;
    };

    int textCode(Property property, const QString& text);
    int choiceCode(Property property, int choice);
    int nameCode(Property property, OdDbObjectId record);
    const LayerCodes& layerCodes(OdDbObjectId layer);
    void addCode(Property property, int code) { m_columns[property].codes.push_back(code); }
    void addChoice(Property property, std::optional<int> choice);
    void addNumber(Property property, std::optional<double> number);

    std::vector<OdDbObjectId> m_ids;
    std::array<Column, EntityFilterProperties::PropertyCount> m_columns;
    // By record, while entities are read.
    std::map<OdDbObjectId, LayerCodes> m_layers;
    std::map<OdDbObjectId, int> m_names;
};
} // namespace workbench
