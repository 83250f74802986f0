#pragma once

#include "od/odstring.h"

#include <functional>

namespace ut {
/// The characters that a name may not hold.
PLATFORM_EXPORT OdString getForbiddenCharacters();

/// The first of name, name + separator + 1, name + separator + 2 ... that `isUnique` accepts. With `replaceNumber`
/// a separator and number at the name's end are counted on from instead of added to.
PLATFORM_EXPORT OdString makeUniqueName(const OdString& name, const std::function<bool(const OdString&)>& isUnique,
                                        bool replaceNumber, const wchar_t& separator);

/// Three-way natural comparison: runs of digits by their value, whatever their length, everything else by character
/// without regard to case. Equal values of different length: fewer leading zeros first. Texts that are otherwise equal
/// differ by case. `flags` is kept for the host and must be 0.
PLATFORM_EXPORT int strCmpAlphanum(const wchar_t* left, const wchar_t* right, int flags);
} // namespace ut
