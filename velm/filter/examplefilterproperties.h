#pragma once

#include "velm/filter/abstractfilterpropertiesmodel.h"

#include <memory>
#include <vector>

namespace velm {
struct ExampleFilterPropertyData
{
    QString name;
    QStringList path;
    QString valueType;
    QStringList values;
    QString unit;
};

/// A fixed set of properties, most kinds of values among them. A bad row throws std::out_of_range.
class VELM_EXPORT ExampleFilterProperties : public AbstractFilterPropertiesModel
{
    Q_OBJECT
public:
    static std::unique_ptr<ExampleFilterProperties> createExampleFilterProperties();
    ~ExampleFilterProperties() override;

    int getNrProperties() const override;
    QStringList getValues(int index) const override;
    QString getName(int index) const override;
    QString getValueType(int index) const override;
    QString getUnit(int index) const override;
    QStringList getPath(int index) const override;
    bool isHierarchical() const override;

private:
    ExampleFilterProperties(std::vector<ExampleFilterPropertyData> properties, QObject* parent);
    const ExampleFilterPropertyData& record(int index) const;

    std::vector<ExampleFilterPropertyData> m_properties;
};
} // namespace velm
