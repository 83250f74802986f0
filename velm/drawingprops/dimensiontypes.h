#pragma once

#include "od/odarray.h"
#include "od/oddbobjectid.h"
#include "velm/velm_export.h"

#include <wx/string.h>

class OdDbDatabase;
class OdDbEntity;

namespace velm {
/// A kind of dimension that a style can be made for. Such a child style stands in the drawing under a record name,
/// "Standard$2", and is shown under a display name, "Standard: Angular".
class VELM_EXPORT CDimensionTypeInfo
{
public:
    virtual int number() const = 0;
    /// In the language of the wx catalogue; valid as long as the catalogue.
    virtual const wchar_t* name() const = 0;
    /// 3 for angles, 7 for distances.
    virtual int valueKind() const = 0;

    /// Turns the name of a style, whatever follows its last "$", into that of this kind's child as a user sees it.
    void makeDisplayName(OdString& name) const;
    /// Turns the name of a style, whatever follows its last ":", into that of this kind's child in the drawing.
    void makeRecordName(OdString& name) const;

protected:
    ~CDimensionTypeInfo() = default; // none is ever deleted; the operations come first in the table of virtual ones
};

class VELM_EXPORT DimensionTypeDistance : public CDimensionTypeInfo
{
public:
    int valueKind() const override;
};

class VELM_EXPORT DimensionTypeAngle : public CDimensionTypeInfo
{
public:
    int valueKind() const override;
};

class VELM_EXPORT CLinearDimensionTypeInfo : public DimensionTypeDistance
{
public:
    int number() const override;
    const wchar_t* name() const override;
};

class VELM_EXPORT CAngularDimensionTypeInfo : public DimensionTypeAngle
{
public:
    int number() const override;
    const wchar_t* name() const override;
};

class VELM_EXPORT CRadiusDimensionTypeInfo : public DimensionTypeDistance
{
public:
    int number() const override;
    const wchar_t* name() const override;
};

class VELM_EXPORT CDiameterDimensionTypeInfo : public DimensionTypeDistance
{
public:
    int number() const override;
    const wchar_t* name() const override;
};

class VELM_EXPORT COrdinateDimensionTypeInfo : public DimensionTypeDistance
{
public:
    int number() const override;
    const wchar_t* name() const override;
};

class VELM_EXPORT CLeaderDimensionTypeInfo : public DimensionTypeDistance
{
public:
    int number() const override;
    const wchar_t* name() const override;
};

/// All kinds, in the order in which they are listed.
VELM_EXPORT const OdArray<const CDimensionTypeInfo*>& dimensionTypes();

// The kind of a number, of a child style's record name or display name, of an entity; null where there is none.
VELM_EXPORT const CDimensionTypeInfo* getDimensionType(int number);
VELM_EXPORT const CDimensionTypeInfo* getDimensionType(const OdString& name);
VELM_EXPORT const CDimensionTypeInfo* getDimensionType(const OdDbEntity* entity);
/// Throws OdError_NotThatKindOfClass for an object that isn't an entity.
VELM_EXPORT const CDimensionTypeInfo* getDimensionType(OdDbObjectId id);

/// What a user sees for the record name of a dimension style: other than the name itself only where the database holds
/// the style as the child of another. No database: always the name itself.
VELM_EXPORT wxString toDisplayName(const wxString& name, OdDbDatabase* database);
/// The record name for what a user sees; the database isn't used.
VELM_EXPORT wxString fromDisplayName(const wxString& name, OdDbDatabase* database);
} // namespace velm
