#pragma once

#include "velm/bridge/conversions.h"
#include "velm/filter/ientityfilterpropertiesmodel.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velmtest {
struct FakeFilterProperty
{
    QString id;
    QString name;
    QString type; ///< a key of velm::filter::EDefaultValueType
    QStringList path;
    QStringList values;
    QString unit = {};
};

/// A fixed list of properties of entities.
class FakeFilterProperties : public velm::IEntityFilterPropertiesModel
{
public:
    explicit FakeFilterProperties(std::vector<FakeFilterProperty> properties,
                                  oc::PropertyFilterFactoriesManager* manager = nullptr)
        : m_properties(std::move(properties)), m_manager(manager)
    {}

    int getNrProperties() const override { return static_cast<int>(m_properties.size()); }
    QString getName(int index) const override { return row(index).name; }
    QString getValueType(int index) const override { return row(index).type; }
    QString getUnit(int index) const override { return row(index).unit; }
    QStringList getPath(int index) const override { return row(index).path; }
    QStringList getValues(int index) const override
    {
        return row(index).values.isEmpty() ? IEntityFilterPropertiesModel::getValues(index) : row(index).values;
    }
    OdString getRegistryId(int index) const override { return velm::odFromQt(row(index).id); }
    int getIndexByGuid(const ut::UUID& guid) const override
    {
        return find([&](const FakeFilterProperty& property) { return has(property, guid); });
    }
    int getIndexByGuidAndPath(const ut::UUID& guid, const OdArray<OdString>& path) const override
    {
        return find([&](const FakeFilterProperty& property) {
            return has(property, guid) && property.path == velm::toQtStringList(path);
        });
    }

    oc::PropertyFilterFactoriesManager* getPropertyFilterFactoriesManager() const override { return m_manager; }
    void hostFilterAction1() override {}
    void hostFilterAction2() override {}
    void hostFilterAction3() override {}
    void hostFilterAction4() override {}

private:
    const FakeFilterProperty& row(int index) const { return m_properties.at(static_cast<std::size_t>(index)); }
    static bool has(const FakeFilterProperty& property, const ut::UUID& guid)
    {
        return ut::UUID(velm::odFromQt(property.id)) == guid;
    }
    template <class Predicate>
    int find(Predicate predicate) const
    {
        const auto found = std::find_if(m_properties.begin(), m_properties.end(), predicate);
        return found == m_properties.end() ? -1 : static_cast<int>(found - m_properties.begin());
    }

    std::vector<FakeFilterProperty> m_properties;
    oc::PropertyFilterFactoriesManager* m_manager; // not owned
};
} // namespace velmtest
