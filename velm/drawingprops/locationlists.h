#pragma once

#include "od/oddbtimezone.h"
#include "velm/velm_export.h"

#include <wx/arrstr.h>

/// What a dialog lists for a drawing's place on the earth. The lists are translated once, at their first use.
namespace velm {
VELM_EXPORT const wxArrayString& timeZoneStrings();
/// The zone of a row of timeZoneStrings(); outside of it Pacific time.
VELM_EXPORT OdDb::TimeZone timeZone(int index);
/// The row of a zone in timeZoneStrings(); for an unknown zone that of Pacific time.
VELM_EXPORT int timeZone(OdDb::TimeZone zone);
VELM_EXPORT const wxArrayString& angleFormatStrings();
} // namespace velm
