#pragma once

#include "velm/bridge/conversions.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"

#include <vector>

namespace velmtest {
/// "type value", lists with slashes between their items.
inline QString typed(const QVariant& value)
{
    const bool isList = value.metaType() == QMetaType::fromType<QVariantList>() ||
                        value.metaType() == QMetaType::fromType<QStringList>();
    return value.isValid()
               ? QString("%1 %2").arg(value.typeName(), isList ? value.toStringList().join('/') : value.toString())
               : QString("nothing");
}

struct FakeProperty
{
    QString name;
    QString type = "string";
    QStringList path;
    QString unit;
    QStringList values;
    QString id; ///< empty for none that lasts
};

/// Properties that a test makes up and changes. Each row that isn't there reads as empty.
class FakeProperties : public velm::AbstractFilterPropertiesModel
{
public:
    FakeProperties(std::initializer_list<FakeProperty> rows = {}) : m_rows(rows) {}
    explicit FakeProperties(std::vector<FakeProperty> rows) : m_rows(std::move(rows)) {}

    QString subCategory;
    std::vector<ut::UUID> initial;

    void reset(std::vector<FakeProperty> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }
    void append(const FakeProperty& row)
    {
        beginInsertRows({}, getNrProperties(), getNrProperties());
        m_rows.push_back(row);
        endInsertRows();
    }
    void remove(int index)
    {
        beginRemoveRows({}, index, index);
        m_rows.erase(m_rows.begin() + index);
        endRemoveRows();
    }
    void change(int index, const FakeProperty& row)
    {
        m_rows[static_cast<std::size_t>(index)] = row;
        Q_EMIT dataChanged(this->index(index, 0), this->index(index, 0));
    }

    int getNrProperties() const override { return static_cast<int>(m_rows.size()); }
    QString getName(int index) const override { return row(index).name; }
    QString getValueType(int index) const override { return row(index).type; }
    QString getUnit(int index) const override { return row(index).unit; }
    QStringList getPath(int index) const override { return row(index).path; }
    QStringList getValues(int index) const override
    {
        return row(index).values.isEmpty() ? AbstractFilterPropertiesModel::getValues(index) : row(index).values;
    }
    QString getFullPathName(int index, bool withUnit) const override
    {
        const QString name = (row(index).path + QStringList(row(index).name)).join(u'/');
        return withUnit ? name + '{' + row(index).unit + '}' : name;
    }
    OdString getRegistryId(int index) const override
    {
        return row(index).id.isEmpty() ? AbstractFilterPropertiesModel::getRegistryId(index)
                                       : velm::odFromQt(row(index).id);
    }
    OdString getRegistrySubCategory() const override { return velm::odFromQt(subCategory); }
    int getIndexByGuid(const ut::UUID& guid) const override
    {
        for (int index = 0; index < getNrProperties(); ++index)
            if (ut::UUID(getRegistryId(index)) == guid && !guid.isNil())
                return index;
        return -1;
    }
    std::vector<ut::UUID> getInitialPinnedProperties() const override { return initial; }

private:
    const FakeProperty& row(int index) const
    {
        static const FakeProperty none{{}, {}, {}, {}, {}, {}};
        return index >= 0 && index < getNrProperties() ? m_rows[static_cast<std::size_t>(index)] : none;
    }

    std::vector<FakeProperty> m_rows;
};
} // namespace velmtest
