#include "od/oddbdatabase.h"

namespace {
std::wstring mapKey(const OdString& name)
{
    OdString key = name;
    return key.makeLower().wide();
}

template <typename Table>
auto find(const Table& table, const OdString& name) -> decltype(table.byName.begin()->second)
{
    const auto entry = table.byName.find(mapKey(name));
    return entry != table.byName.end() && !entry->second->isErased() ? entry->second : nullptr;
}

template <typename T>
std::vector<T*> present(const std::vector<T*>& records)
{
    std::vector<T*> result;
    result.reserve(records.size());
    for (T* record : records)
        if (!record->isErased())
            result.push_back(record);
    return result;
}

template <typename Table, typename Record>
bool renameIn(Table& table, Record& record, const OdString& name)
{
    const auto* holder = find(table, name);
    if (holder && holder != &record)
        return false;
    const auto former = table.byName.find(mapKey(record.getName()));
    if (former != table.byName.end() && former->second == &record)
        table.byName.erase(former);
    record.setName(name);
    if (!record.isErased())
        table.byName[mapKey(name)] = &record;
    return true;
}
} // namespace

OdDbDatabase::OdDbDatabase()
{
    for (const wchar_t* name : {L"ByBlock", L"ByLayer", L"Continuous"})
        addLinetype(name);
    m_currentLayer = addLayer(L"0")->objectId();
    m_currentLinetype = findLinetype(L"ByLayer")->objectId();
    m_currentDimStyle = addDimStyle(L"Standard")->objectId();
    m_currentDimStyle.open<OdDbDimStyleTableRecord>()->setDimtxsty(addTextStyle(L"Standard")->objectId());
    m_modelSpace = addBlock(L"*Model_Space");
    addLayout(L"Model", m_modelSpace);
    m_paperSpace = addLayout(L"Layout1", addBlock(L"*Paper_Space"))->getBlockTableRecordId();
}

OdDbDatabase::~OdDbDatabase() = default;

std::shared_ptr<OdDbDatabase> OdDbDatabase::keep(OdDbDatabase* database)
{
    std::shared_ptr<OdDbDatabase> owned = database ? database->weak_from_this().lock() : nullptr;
    return owned ? owned : std::shared_ptr<OdDbDatabase>(std::shared_ptr<void>(), database);
}

std::vector<OdDbLayerTableRecord*> OdDbDatabase::layers() const
{
    return present(m_layers.records);
}

std::vector<OdDbLinetypeTableRecord*> OdDbDatabase::linetypes() const
{
    return present(m_linetypes.records);
}

std::vector<OdDbDimStyleTableRecord*> OdDbDatabase::dimStyles() const
{
    return present(m_dimStyles.records);
}

std::vector<OdDbTextStyleTableRecord*> OdDbDatabase::textStyles() const
{
    return present(m_textStyles.records);
}

std::vector<OdDbBlockTableRecord*> OdDbDatabase::blocks() const
{
    return present(m_blocks.records);
}

std::vector<OdDbLayout*> OdDbDatabase::layouts() const
{
    return present(m_layouts.records);
}

OdDbLayerTableRecord* OdDbDatabase::findLayer(const OdString& name) const
{
    return find(m_layers, name);
}

OdDbLinetypeTableRecord* OdDbDatabase::findLinetype(const OdString& name) const
{
    return find(m_linetypes, name);
}

OdDbDimStyleTableRecord* OdDbDatabase::findDimStyle(const OdString& name) const
{
    return find(m_dimStyles, name);
}

OdDbTextStyleTableRecord* OdDbDatabase::findTextStyle(const OdString& name) const
{
    return find(m_textStyles, name);
}

OdDbBlockTableRecord* OdDbDatabase::findBlock(const OdString& name) const
{
    return find(m_blocks, name);
}

OdDbLayerTableRecord* OdDbDatabase::addLayer(const OdString& name)
{
    return add(m_layers, name);
}

OdDbLinetypeTableRecord* OdDbDatabase::addLinetype(const OdString& name)
{
    return add(m_linetypes, name);
}

OdDbDimStyleTableRecord* OdDbDatabase::addDimStyle(const OdString& name)
{
    return add(m_dimStyles, name);
}

OdDbTextStyleTableRecord* OdDbDatabase::addTextStyle(const OdString& name)
{
    return add(m_textStyles, name);
}

OdDbBlockTableRecord* OdDbDatabase::addBlock(const OdString& name)
{
    return add(m_blocks, name);
}

OdDbLayout* OdDbDatabase::addLayout(const OdString& name, OdDbBlockTableRecord* block)
{
    if (OdDbLayout* existing = find(m_layouts, name))
        return existing;
    for (int number = 0; !block; ++number) {
        const OdString paperSpace = L"*Paper_Space" + std::to_wstring(number);
        if (!findBlock(paperSpace))
            block = addBlock(paperSpace);
    }
    OdDbLayout* layout = add(m_layouts, name);
    layout->m_block = block->objectId();
    block->m_layout = layout->objectId();
    return layout;
}

OdDbViewport* OdDbDatabase::addViewport()
{
    auto viewport = std::make_unique<OdDbViewport>();
    OdDbViewport* result = viewport.get();
    store(std::move(viewport));
    return result;
}

bool OdDbDatabase::rename(OdDbSymbolTableRecord& record, const OdString& name)
{
    if (record.database() != this)
        return false;
    const auto renameAs = [&]<typename T>(Table<T>& table) {
        auto* known = dynamic_cast<T*>(&record);
        return known && renameIn(table, *known, name);
    };
    return renameAs(m_layers) || renameAs(m_linetypes) || renameAs(m_dimStyles) || renameAs(m_textStyles) ||
           renameAs(m_blocks) || renameAs(m_layouts);
}

OdDbObject* OdDbDatabase::objectAt(std::uint32_t index) const
{
    return index < m_objects.size() ? m_objects[index].get() : nullptr;
}

template <typename T>
T* OdDbDatabase::add(Table<T>& table, const OdString& name)
{
    if (T* existing = find(table, name))
        return existing;
    auto record = std::make_unique<T>(name);
    T* result = record.get();
    store(std::move(record));
    table.records.push_back(result);
    table.byName[mapKey(name)] = result;
    return result;
}

OdDbObjectId OdDbDatabase::store(std::unique_ptr<OdDbObject> object)
{
    const OdDbObjectId id(this, static_cast<std::uint32_t>(m_objects.size()));
    object->m_id = id;
    m_objects.push_back(std::move(object));
    return id;
}

void OdDbDatabase::appendEntity(std::unique_ptr<OdDbEntity> entity, OdDbBlockTableRecord* block)
{
    if (entity->layerId().isNull())
        entity->setLayer(m_layers.records.front()->objectId());
    entity->m_owner = block->objectId();
    block->m_entities.append(store(std::move(entity)));
}
