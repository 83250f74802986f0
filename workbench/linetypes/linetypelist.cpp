#include "linetypes/linetypelist.h"

#include "od/oddbdatabase.h"
#include "ut/names.h"

#include <wx/translation.h>

#include <algorithm>
#include <set>

namespace workbench {
namespace {
std::set<OdDbObjectId> usedLineTypes(const OdDbDatabase& database)
{
    std::set<OdDbObjectId> used = {database.getCELTYPE()};
    for (const OdDbLayerTableRecord* layer : database.layers())
        used.insert(layer->linetypeObjectId());
    for (const OdDbBlockTableRecord* block : database.blocks())
        for (const OdDbObjectId& id : block->entities())
            if (const auto* entity = id.open<OdDbEntity>())
                used.insert(entity->linetypeId());
    return used;
}

/// 0 for "ByLayer", 1 for "ByBlock", 2 for all others.
int rank(const OdDbLinetypeTableRecord& lineType)
{
    return lineType.getName().iCompare(L"ByLayer") == 0 ? 0 : lineType.getName().iCompare(L"ByBlock") == 0 ? 1 : 2;
}
} // namespace

OdArray<OdDbObjectId> listLineTypes(const OdDbDatabase& database, const LineTypeChoice& choice)
{
    std::set<OdDbObjectId> used;
    if (choice.usedOnly)
        used = usedLineTypes(database);
    used.insert(choice.wanted);
    std::vector<OdDbLinetypeTableRecord*> records = database.linetypes();
    std::erase_if(records, [&](const OdDbLinetypeTableRecord* record) {
        if (rank(*record) < 2)
            return !choice.withByLayer;
        return choice.usedOnly && !used.contains(record->objectId());
    });
    std::ranges::sort(records, [](const OdDbLinetypeTableRecord* a, const OdDbLinetypeTableRecord* b) {
        return rank(*a) != rank(*b) ? rank(*a) < rank(*b)
                                    : ut::strCmpAlphanum(a->getName().c_str(), b->getName().c_str(), 0) < 0;
    });
    OdArray<OdDbObjectId> result;
    for (const OdDbLinetypeTableRecord* record : records)
        result.append(record->objectId());
    return result;
}

OdString lineTypeLocalName(const OdString& storedName)
{
    for (const char* name : {wxTRANSLATE("ByLayer"), wxTRANSLATE("ByBlock"), wxTRANSLATE("Continuous")})
        if (storedName.iCompare(OdString(name)) == 0)
            return wxGetTranslation(name).wc_str();
    return storedName;
}
} // namespace workbench
