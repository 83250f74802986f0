#include "velm/drawingprops/dimensiontypes.h"

#include "od/oddbdimension.h"
#include "ut/databaseutils.h"
#include "velm/bridge/strings.h"

#include <typeinfo>

namespace velm {
namespace {
void cutAtLast(wchar_t character, OdString& name)
{
    const std::size_t position = name.wide().rfind(character);
    if (position != std::wstring::npos)
        name = name.left(static_cast<int>(position));
}

const CDimensionTypeInfo* typeOfNumber(long number)
{
    for (const CDimensionTypeInfo* type : dimensionTypes())
        if (type->number() == number)
            return type;
    return nullptr;
}

template <typename... Classes>
bool isExactly(const OdDbEntity& entity)
{
    return (... || (typeid(entity) == typeid(Classes)));
}

template <typename... Classes>
bool isKindOf(const OdDbEntity& entity)
{
    return (... || dynamic_cast<const Classes*>(&entity));
}
} // namespace

void CDimensionTypeInfo::makeDisplayName(OdString& displayName) const
{
    cutAtLast(L'$', displayName);
    displayName += L": ";
    displayName += name();
}

void CDimensionTypeInfo::makeRecordName(OdString& recordName) const
{
    cutAtLast(L':', recordName);
    recordName += wxString::Format("$%ld", static_cast<long>(number())).wc_str();
}

int DimensionTypeDistance::valueKind() const
{
    return 7;
}

int DimensionTypeAngle::valueKind() const
{
    return 3;
}

int CLinearDimensionTypeInfo::number() const
{
    return 0;
}

const wchar_t* CLinearDimensionTypeInfo::name() const
{
    return hostTranslation("Linear").wc_str();
}

int CAngularDimensionTypeInfo::number() const
{
    return 2;
}

const wchar_t* CAngularDimensionTypeInfo::name() const
{
    return hostTranslation("Angular").wc_str();
}

int CRadiusDimensionTypeInfo::number() const
{
    return 4;
}

const wchar_t* CRadiusDimensionTypeInfo::name() const
{
    return hostTranslation("Radius").wc_str();
}

int CDiameterDimensionTypeInfo::number() const
{
    return 3;
}

const wchar_t* CDiameterDimensionTypeInfo::name() const
{
    return hostTranslation("Diameter").wc_str();
}

int COrdinateDimensionTypeInfo::number() const
{
    return 6;
}

const wchar_t* COrdinateDimensionTypeInfo::name() const
{
    return hostTranslation("Ordinate").wc_str();
}

int CLeaderDimensionTypeInfo::number() const
{
    return 7;
}

const wchar_t* CLeaderDimensionTypeInfo::name() const
{
    return hostTranslation("Leader").wc_str();
}

const OdArray<const CDimensionTypeInfo*>& dimensionTypes()
{
    static const CLinearDimensionTypeInfo linear;
    static const CAngularDimensionTypeInfo angular;
    static const CRadiusDimensionTypeInfo radius;
    static const CDiameterDimensionTypeInfo diameter;
    static const COrdinateDimensionTypeInfo ordinate;
    static const CLeaderDimensionTypeInfo leader;
    static const OdArray<const CDimensionTypeInfo*> types{&linear, &angular, &radius, &diameter, &ordinate, &leader};
    return types;
}

const CDimensionTypeInfo* getDimensionType(int number)
{
    return typeOfNumber(number);
}

const CDimensionTypeInfo* getDimensionType(const OdString& name)
{
    const wxString text(name.wide());
    if (text.find(':') == wxString::npos) {
        const std::size_t dollar = text.rfind('$');
        long number = 0;
        return dollar != wxString::npos && text.substr(dollar + 1).ToLong(&number) ? typeOfNumber(number) : nullptr;
    }
    const wxString typeName = text.AfterLast(':').Trim(false);
    for (const CDimensionTypeInfo* type : dimensionTypes())
        if (typeName.CmpNoCase(type->name()) == 0)
            return type;
    return nullptr;
}

const CDimensionTypeInfo* getDimensionType(const OdDbEntity* entity)
{
    if (!entity)
        return nullptr;
    // This must stay: a class that a host derives from one of these three is no dimension with a style of its own.
    if (isExactly<OdDbRadialDimension, OdDbRadialDimensionLarge>(*entity))
        return typeOfNumber(4);
    if (isExactly<OdDbRotatedDimension>(*entity) || isKindOf<OdDbArcDimension, OdDbAlignedDimension>(*entity))
        return typeOfNumber(0);
    if (isKindOf<OdDb2LineAngularDimension, OdDb3PointAngularDimension>(*entity))
        return typeOfNumber(2);
    if (isKindOf<OdDbDiametricDimension>(*entity))
        return typeOfNumber(3);
    if (isKindOf<OdDbOrdinateDimension>(*entity))
        return typeOfNumber(6);
    if (isKindOf<OdDbLeader, OdDbFcf>(*entity))
        return typeOfNumber(7);
    return nullptr;
}

const CDimensionTypeInfo* getDimensionType(OdDbObjectId id)
{
    const OdDbObject* object = id.openObject();
    const auto* entity = dynamic_cast<const OdDbEntity*>(object);
    if (object && !entity)
        throw OdError_NotThatKindOfClass();
    return getDimensionType(entity);
}

wxString toDisplayName(const wxString& name, OdDbDatabase* database)
{
    if (name.find('$') == wxString::npos)
        return name;
    OdString displayName(name.wc_str());
    const CDimensionTypeInfo* type = getDimensionType(displayName);
    if (!type || !ut::DatabaseUtils::isChildDimStyle(displayName, database))
        return name;
    type->makeDisplayName(displayName);
    return displayName.wide();
}

wxString fromDisplayName(const wxString& name, OdDbDatabase*)
{
    if (name.find(':') == wxString::npos)
        return name;
    OdString recordName(name.wc_str());
    const CDimensionTypeInfo* type = getDimensionType(recordName);
    if (!type)
        return name;
    type->makeRecordName(recordName);
    return recordName.wide();
}
} // namespace velm
