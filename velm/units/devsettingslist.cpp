#include "velm/units/devsettingslist.h"

#include <map>
#include <utility>

namespace velm {
namespace {
/// What was set in this process, by tag and key.
std::map<QString, std::map<QString, int>>& keptValues()
{
    static std::map<QString, std::map<QString, int>> values;
    return values;
}
} // namespace

DevSettingsList::DevSettingsList(const QString& tag, std::vector<Setting> settings)
    : m_tag(tag), m_settings(std::move(settings))
{
    // What is made first goes last: the values outlive every list.
    keptValues();
}

DevSettingsList::~DevSettingsList() = default;

void DevSettingsList::load(const QString& tag, std::vector<Setting> settings)
{
    beginResetModel();
    m_tag = tag;
    m_settings.swap(settings);
    if (const auto kept = keptValues().find(m_tag); kept != keptValues().end())
        for (Setting& setting : m_settings)
            if (const auto value = kept->second.find(setting.key); value != kept->second.end())
                setting.current = value->second;
    endResetModel();
    changed();
}

QVariant DevSettingsList::currentValue(const Setting& setting)
{
    return setting.values.isEmpty() ? QVariant(setting.current != 0) : QVariant(setting.current);
}

int DevSettingsList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_settings.size());
}

QVariant DevSettingsList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return QVariant();
    const Setting& setting = m_settings[static_cast<std::size_t>(index.row())];
    switch (role) {
    case NameRole:
        return setting.name;
    case IsEnumRole:
        return !setting.values.isEmpty();
    case ValuesRole:
        return setting.values;
    case CurrentValueRole:
        return currentValue(setting);
    default:
        return QVariant();
    }
}

bool DevSettingsList::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.row() >= rowCount() || role != CurrentValueRole)
        return false;
    Setting& setting = m_settings[static_cast<std::size_t>(index.row())];
    setting.current = setting.values.isEmpty() ? static_cast<int>(value.toBool()) : value.toInt();
    keptValues()[m_tag][setting.key] = setting.current;
    Q_EMIT dataChanged(index, index, {CurrentValueRole});
    changed();
    return true;
}

QHash<int, QByteArray> DevSettingsList::roleNames() const
{
    return {{NameRole, "itemName"},
            {IsEnumRole, "itemIsEnum"},
            {ValuesRole, "itemValues"},
            {CurrentValueRole, "itemCurrentValue"}};
}
} // namespace velm
