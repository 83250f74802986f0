#pragma once

#include "od/odstring.h"

#include <string_view>

namespace workbench {

bool isValidUtf8(std::string_view bytes);

/// The text of a value as the file holds it: UTF-8 or the western code page, with \U+XXXX escapes.
std::wstring decodeDxfText(std::string_view bytes, bool isUtf8);

/// A single-line text with its %% codes (degree, diameter, plus-minus, underline) replaced or taken out.
std::wstring plainText(const std::wstring& coded);

/// A formatted paragraph text as plain lines, separated by newlines: formatting codes and braces are taken out,
/// stacked fractions become "a/b".
std::wstring plainMText(const std::wstring& coded);

} // namespace workbench
