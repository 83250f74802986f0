#pragma once

#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/filtertagsmodel.h"

#include <algorithm>
#include <array>

/// What a filter of parts in stock may test.
class StockProperties : public velm::AbstractFilterPropertiesModel
{
public:
    enum Property
    {
        Name,
        Material,
        Price,
        PropertyCount
    };

    int getNrProperties() const override { return PropertyCount; }
    QString getName(int index) const override { return std::array{"name", "material", "price"}.at(index); }
    QString getValueType(int index) const override { return std::array{"stringMultiple", "enum", "real"}.at(index); }
    QStringList getValues(int index) const override
    {
        return index == Material ? QStringList{"steel", "brass"} : QStringList();
    }
    QString getUnit(int index) const override { return index == Price ? "EUR" : QString(); }
    QStringList getPath(int index) const override { return {index == Price ? "Purchase" : "General"}; }
    QString getFullPathName(int index, bool withUnit) const override
    {
        const QString path = getPath(index).join('/') + '/' + getName(index);
        return withUnit && index == Price ? path + " [EUR]" : path;
    }
    bool isHierarchical() const override { return true; }
};

/// How many prices a filter lets through. What the tags mean is the host's affair; this one knows but two operators.
inline int countPrices(const velm::FilterTagsModel& tags, const std::vector<double>& prices)
{
    const auto holds = [](const velm::FilterTagData& tag, double price) {
        using Operators = velm::FilterOperatorsModel;
        return tag.propertyIndex == StockProperties::Price &&
               (tag.operation == Operators::Greater ? price > tag.value.toDouble()
                                                    : tag.operation == Operators::Less && price < tag.value.toDouble());
    };
    const velm::FilterData filter = tags.getFilter();
    return static_cast<int>(std::ranges::count_if(prices, [&](double price) {
        return std::ranges::any_of(filter, [&](const std::vector<velm::FilterTagData>& conjunction) {
            return !conjunction.empty() &&
                   std::ranges::all_of(conjunction, [&](const velm::FilterTagData& tag) { return holds(tag, price); });
        });
    }));
}
