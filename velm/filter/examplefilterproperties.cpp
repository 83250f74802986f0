#include "velm/filter/examplefilterproperties.h"

#include <utility>

namespace velm {
std::unique_ptr<ExampleFilterProperties> ExampleFilterProperties::createExampleFilterProperties()
{
    using filter::EDefaultValueType;
    using filter::getValueTypeName;
    const QStringList general = {"General"};
    const QStringList misc = {"Misc."};
    const QStringList levels = {"Several", "Levels"};
    std::vector<ExampleFilterPropertyData> properties = {
        {"name", general, getValueTypeName(EDefaultValueType::String), {}, {}},
        {"name (multiple)", general, getValueTypeName(EDefaultValueType::StringMultiple), {}, {}},
        {"type", general, getValueTypeName(EDefaultValueType::Enum), {"Wall", "Window", "Door", "Beam"}, {}},
        {"color", misc, getValueTypeName(EDefaultValueType::Color), {}, {}},
        {"lineweight", misc, getValueTypeName(EDefaultValueType::LineWeight), {}, {}},
        {"transparency", misc, getValueTypeName(EDefaultValueType::Transparency), {}, {}},
        {"parameter", levels, getValueTypeName(EDefaultValueType::Real), {}, "inch"},
        {"integer", levels, getValueTypeName(EDefaultValueType::Integer), {}, "item(s)"},
        {"boolean", levels + QStringList("Deep"), getValueTypeName(EDefaultValueType::Boolean), {}, {}},
    };
    return std::unique_ptr<ExampleFilterProperties>(new ExampleFilterProperties(std::move(properties), nullptr));
}

ExampleFilterProperties::ExampleFilterProperties(std::vector<ExampleFilterPropertyData> properties, QObject* parent)
    : AbstractFilterPropertiesModel(parent), m_properties(std::move(properties))
{}

ExampleFilterProperties::~ExampleFilterProperties() = default;

int ExampleFilterProperties::getNrProperties() const
{
    return static_cast<int>(m_properties.size());
}

QStringList ExampleFilterProperties::getValues(int index) const
{
    const QStringList& values = record(index).values;
    return values.isEmpty() ? AbstractFilterPropertiesModel::getValues(index) : values;
}

QString ExampleFilterProperties::getName(int index) const
{
    return record(index).name;
}

QString ExampleFilterProperties::getValueType(int index) const
{
    return record(index).valueType;
}

QString ExampleFilterProperties::getUnit(int index) const
{
    return record(index).unit;
}

QStringList ExampleFilterProperties::getPath(int index) const
{
    return record(index).path;
}

bool ExampleFilterProperties::isHierarchical() const
{
    return true;
}

const ExampleFilterPropertyData& ExampleFilterProperties::record(int index) const
{
    return m_properties.at(static_cast<std::size_t>(index));
}
} // namespace velm
