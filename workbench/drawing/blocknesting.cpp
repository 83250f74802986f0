#include "drawing/blocknesting.h"

#include "drawing/dxftext.h"

#include <map>

namespace workbench {

namespace {

/// An insert in the definition of a block.
struct Nesting
{
    std::wstring block;    // in lower case
    std::size_t group = 0; // that names it
};
using Nestings = std::map<std::wstring, std::vector<Nesting>>; // by the block that contains them, in lower case

Nestings nestingsIn(const DxfGroups& file)
{
    const auto blockName = [&](std::string_view value) {
        return OdString(decodeDxfText(value, file.isUtf8)).makeLower().wide();
    };
    Nestings nestings;
    const std::span<const DxfGroup> groups(file.groups);
    std::string_view section;
    std::wstring block; // the one being defined
    for (std::size_t start = 0; start < groups.size();) {
        std::size_t end = start + 1;
        while (end < groups.size() && groups[end].code != 0)
            ++end;
        const std::string_view type = groups[start].value;
        if (type == "SECTION")
            section = valueOf(groups.subspan(start, end - start), 2);
        else if (section == "BLOCKS" && type == "BLOCK")
            block = blockName(valueOf(groups.subspan(start, end - start), 2));
        else if (section == "BLOCKS" && (type == "INSERT" || type == "DIMENSION"))
            for (std::size_t i = start; i < end; ++i)
                if (groups[i].code == 2)
                    nestings[block].push_back({blockName(groups[i].value), i});
        start = end;
    }
    return nestings;
}

} // namespace

void checkBlockNesting(const DxfGroups& file)
{
    enum class State
    {
        Unknown,
        Open, // on the way from the block that the search began with
        Done,
    };
    struct Step
    {
        std::wstring block;
        std::size_t next = 0; // of its nestings
    };
    static const std::vector<Nesting> none;
    const Nestings allNestings = nestingsIn(file);
    std::map<std::wstring, State> states;
    const auto nestingsOf = [&](const std::wstring& block) -> const std::vector<Nesting>& {
        const auto found = allNestings.find(block);
        return found == allNestings.end() ? none : found->second;
    };
    for (const auto& [start, unused] : allNestings) {
        std::vector<Step> way; // not a recursion: a file may nest as deep as it likes
        if (states[start] == State::Unknown)
            way.push_back({start});
        while (!way.empty()) {
            const std::wstring block = way.back().block;
            states[block] = State::Open;
            const std::vector<Nesting>& nestings = nestingsOf(block);
            if (way.back().next == nestings.size()) {
                states[block] = State::Done;
                way.pop_back();
                continue;
            }
            const Nesting& nesting = nestings[way.back().next++];
            if (states[nesting.block] == State::Open) {
                const std::string_view value = file.groups[nesting.group].value;
                const std::string name = OdString(decodeDxfText(value, file.isUtf8)).utf8();
                throw DxfError("line " + std::to_string(2 * nesting.group + 2) + " inserts block \"" + name +
                               (nesting.block == block ? "\" into itself." : "\" into one of its own parts."));
            }
            if (states[nesting.block] == State::Unknown)
                way.push_back({nesting.block});
        }
    }
}

} // namespace workbench
