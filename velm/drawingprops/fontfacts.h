#pragma once

#include "od/odarray.h"
#include "velm/velm_export.h"

namespace velm {
// What the installed fonts offer. An unknown family or style gives Qt's answer for one: nothing, false or -1.
VELM_EXPORT OdArray<OdString> getStyles(const OdString& family);
/// On Qt's scale of weights.
VELM_EXPORT int getWeight(const OdString& family, const OdString& style);
VELM_EXPORT bool isBold(const OdString& family, const OdString& style);
VELM_EXPORT bool isItalic(const OdString& family, const OdString& style);
/// The names of the writing systems that the family covers.
VELM_EXPORT OdArray<OdString> getLanguages(const OdString& family);
/// Always 0.
VELM_EXPORT int getCharset(const OdString& family);
/// Always 0.
VELM_EXPORT int getPitchAndFamily(const OdString& family);
} // namespace velm
