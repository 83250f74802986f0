#pragma once

#include "od/odstring.h"

#include <filesystem>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// What is wrong with a drawing file: the end of a sentence, in UTF-8, without the file's name.
class DxfError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// One pair of lines: a group code and its value, without the white space around it.
struct DxfGroup
{
    int code = 0;
    std::string_view value;
};

/// The first value of a code among the groups of an object, behind the group that names its type; or empty.
std::string_view valueOf(std::span<const DxfGroup> object, int code);

/// Of a value that was checked to be a number; 0 for another.
double numberOf(std::string_view value);

/// The groups of a DXF text file, checked: whole, in sections, with a finite number wherever one has to stand.
/// Group i stands on the lines 2i+1 (its code) and 2i+2 (its value).
/// Not supported: binary DXF, files above 1 GB.
struct DxfGroups
{
    std::string text;             ///< what the values point into
    std::vector<DxfGroup> groups; ///< the last one is the end mark, unless only some objects are kept
    bool isUtf8 = true;           ///< otherwise the text is in the western code page
    bool cancelled = false;

    DxfGroups() = default;
    DxfGroups(const DxfGroups&) = delete;
    DxfGroups& operator=(const DxfGroups&) = delete;
};

/// For any name: a path made of wide characters throws for some.
std::filesystem::path pathOf(const OdString& fileName);

/// Whether the groups of an object of this type in this section are kept.
using DxfObjectFilter = std::function<bool(std::string_view section, std::string_view type)>;

/// Reads and checks a file into `result`; throws DxfError. `progress` gets the share from 0 to 1 and returns false to
/// cancel. With a filter all of the file is checked but only a part of it is kept, so that a group's place doesn't tell
/// its line.
void loadDxfGroups(const std::filesystem::path& file, const std::function<bool(double share)>& progress,
                   DxfGroups& result, const DxfObjectFilter& filter = {});

} // namespace workbench
