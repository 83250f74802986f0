#include "velm/filter/pinnedpropertiesmodel.h"

#include "ut/config.h"
#include "velm/bridge/conversions.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/valuetext.h"

#include <QPointer>

#include <unordered_set>
#include <utility>

namespace velm {
template class GenericListModel<PinnedPropertyItem>;

namespace {
constexpr ut::ECfgGroup group = ut::ECfgGroup::Dialogs;
constexpr int currentProfile = 1;
} // namespace

struct PinnedPropertiesModel::Pimpl
{
    std::unordered_set<int> pinnedIndexes;
    QPointer<const AbstractFilterPropertiesModel> properties;
    OdArray<OdString> unresolvedIds;
    OdString registryKey;
};

PinnedPropertiesModel::PinnedPropertiesModel() : m_pimpl(std::make_unique<Pimpl>())
{}

PinnedPropertiesModel::~PinnedPropertiesModel() = default;

const AbstractFilterPropertiesModel* PinnedPropertiesModel::getProperties() const
{
    return m_pimpl->properties;
}

void PinnedPropertiesModel::setProperties(const AbstractFilterPropertiesModel& properties)
{
    if (m_pimpl->properties == &properties)
        return;
    m_pimpl->properties = &properties;
    clear();
    m_pimpl->pinnedIndexes.clear();
    if (const OdString subCategory = properties.getRegistrySubCategory(); !subCategory.isEmpty()) {
        m_pimpl->registryKey = L"Filter/Pinned/";
        m_pimpl->registryKey += subCategory;
    }
}

bool PinnedPropertiesModel::isPinned(int propertyIndex) const
{
    return m_pimpl->pinnedIndexes.contains(propertyIndex);
}

void PinnedPropertiesModel::pinProperty(int propertyIndex, bool save)
{
    const AbstractFilterPropertiesModel* properties = m_pimpl->properties;
    if (isPinned(propertyIndex) || propertyIndex < 0 || properties == nullptr ||
        propertyIndex >= properties->getNrProperties() || properties->getName(propertyIndex).isEmpty())
        return;
    append(PinnedPropertyItem{propertyIndex, nameWithUnit(*properties, propertyIndex),
                              properties->getFullPathName(propertyIndex, true),
                              properties->getRegistryId(propertyIndex)});
    m_pimpl->pinnedIndexes.insert(propertyIndex);
    if (save)
        this->save();
    Q_EMIT pinStateChanged(propertyIndex);
}

void PinnedPropertiesModel::unpinProperty(int propertyIndex)
{
    if (!isPinned(propertyIndex))
        return;
    if (const std::optional<int> row =
            find_if([propertyIndex](const PinnedPropertyItem& item) { return item.propertyIndex == propertyIndex; }))
        erase(*row, 1);
    m_pimpl->pinnedIndexes.erase(propertyIndex);
    save();
    Q_EMIT pinStateChanged(propertyIndex);
}

void PinnedPropertiesModel::togglePinned(int propertyIndex)
{
    if (isPinned(propertyIndex))
        unpinProperty(propertyIndex);
    else
        pinProperty(propertyIndex, true);
}

void PinnedPropertiesModel::loadPinnedProperties()
{
    const AbstractFilterPropertiesModel* properties = m_pimpl->properties;
    if (m_pimpl->registryKey.isEmpty() || properties == nullptr)
        return;
    OdArray<OdString> ids;
    if (ut::Config::loadListFromRegistry(group, m_pimpl->registryKey, ids) != ut::Config::ERegList::NoKey) {
        m_pimpl->unresolvedIds.clear();
        for (const OdString& id : ids) {
            const int propertyIndex = properties->getIndexByGuid(ut::UUID(id));
            if (propertyIndex < 0)
                m_pimpl->unresolvedIds.append(id);
            else
                pinProperty(propertyIndex, false);
        }
        return;
    }
    const int before = size();
    for (const ut::UUID& id : properties->getInitialPinnedProperties())
        pinProperty(properties->getIndexByGuid(id), false);
    if (size() != before)
        save();
}

QVariant PinnedPropertiesModel::data(const QModelIndex& index, int role) const
{
    const PinnedPropertyItem* item = getItem(index);
    if (item == nullptr)
        return {};
    switch (role) {
    case NameRole:
        return item->name;
    case PropertyIndexRole:
        return item->propertyIndex;
    case TooltipRole:
        return item->tooltip;
    default:
        return {};
    }
}

QHash<int, QByteArray> PinnedPropertiesModel::roleNames() const
{
    return {{NameRole, "name"}, {PropertyIndexRole, "propertyIndex"}, {TooltipRole, "tooltip"}};
}

void PinnedPropertiesModel::save() const
{
    if (m_pimpl->registryKey.isEmpty())
        return;
    OdArray<OdString> ids;
    for (const PinnedPropertyItem& item : getItems())
        if (item.registryId != ut::UUID::s_cNil.toString())
            ids.append(item.registryId);
    for (const OdString& id : m_pimpl->unresolvedIds)
        ids.append(id);
    if (!ids.isEmpty() &&
        ut::Config::saveListToRegistry(group, m_pimpl->registryKey, ids, currentProfile) == ut::Config::ERegList::Saved)
        return;
    // An empty key tells that nothing is pinned, other than no key.
    ut::Config::deleteGroup(group, m_pimpl->registryKey);
    OdString emptyNode = m_pimpl->registryKey;
    emptyNode += L"/";
    if (const std::unique_ptr<ut::ConfigNode> profile = ut::Config::getIfProfileNode(group, currentProfile))
        profile->createNode(emptyNode);
}
} // namespace velm
