#include "filter/filterstore.h"

#include "filter/filterjson.h"
#include "velm/bridge/conversions.h"
#include "velm/filter/ientityfilterpropertiesmodel.h"

#include <utility>

namespace workbench {
FilterStore::FilterStore(QString folder, std::function<void(const QString& message)> tell)
    : m_folder(std::move(folder), std::move(tell))
{}

QStringList FilterStore::getFilterList() const
{
    return m_folder.names();
}

void FilterStore::save(const velm::FilterData& filter, const velm::IEntityFilterPropertiesModel& properties,
                       const QString& name)
{
    m_folder.write(name, {{FilterFolder::versionKey, FilterFolder::version},
                          {FilterFolder::conjunctionsKey, filterToJson(filter, properties)}});
    m_folder.tellChange();
}

std::optional<velm::FilterData> FilterStore::load(const QString& name,
                                                  const velm::IEntityFilterPropertiesModel& properties,
                                                  QStringList& missingProperties, OdString& requiredVersion)
{
    const std::optional<QJsonObject> filter = m_folder.read(name);
    if (!filter)
        return {};
    const int version = (*filter)[FilterFolder::versionKey].toInt();
    if (version > FilterFolder::version) {
        const QString program = (*filter)[QStringLiteral("requires")].toString();
        requiredVersion = velm::odFromQt(program.isEmpty() ? QString::number(version) : program);
        return {};
    }
    return filterFromJson((*filter)[FilterFolder::conjunctionsKey].toArray(), properties, missingProperties);
}

void FilterStore::rename(const QString& oldName, const QString& newName)
{
    if (oldName != newName && copy(oldName, newName))
        m_folder.remove(oldName);
    m_folder.tellChange();
}

void FilterStore::duplicate(const QString& name, const QString& newName)
{
    copy(name, newName);
    m_folder.tellChange();
}

void FilterStore::remove(const QString& name)
{
    m_folder.remove(name);
    m_folder.tellChange();
}

std::shared_ptr<void> FilterStore::addFiltersChangedListener(std::function<void()> listener)
{
    auto handle = std::make_shared<QObject>();
    QObject::connect(&m_folder, &FilterFolder::changed, handle.get(), std::move(listener));
    return handle;
}

bool FilterStore::copy(const QString& name, const QString& newName)
{
    const std::optional<QJsonObject> filter = m_folder.read(name);
    if (!filter) {
        m_folder.tell(FilterFolder::tr("There is no filter \"%1\" any more.").arg(name));
        return false;
    }
    if (m_folder.read(newName)) {
        m_folder.tell(FilterFolder::tr("There is a filter \"%1\" already.").arg(newName));
        return false;
    }
    return m_folder.write(newName, *filter);
}
} // namespace workbench
