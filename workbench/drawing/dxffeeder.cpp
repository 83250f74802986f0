#include "drawing/dxffeeder.h"

#include <algorithm>
#include <array>

namespace workbench {

namespace {

// dxflib cuts lines off at 1023 bytes and then reads what follows as a group code.
constexpr std::size_t longestValue = 1000;
constexpr int lastCode = 999; // what stands above are the private data of applications

bool isOneOf(std::string_view type, std::initializer_list<std::string_view> types)
{
    return std::find(types.begin(), types.end(), type) != types.end();
}

bool isEntity(std::string_view type)
{
    return isOneOf(type, {"POINT", "LINE", "POLYLINE", "LWPOLYLINE", "VERTEX", "SEQEND", "SPLINE", "ARC", "ELLIPSE",
                          "CIRCLE", "INSERT", "TEXT", "MTEXT", "ATTRIB", "LEADER", "TRACE", "SOLID", "3DFACE"});
}

/// Replaces the counts of points, which nobody can trust: the code of the count, and of the groups that it counts.
std::vector<std::pair<int, int>> countsOf(std::string_view type)
{
    if (type == "LWPOLYLINE")
        return {{90, 10}};
    if (type == "SPLINE")
        return {{72, 40}, {73, 10}, {74, 11}};
    if (type == "LEADER")
        return {{76, 10}};
    return {};
}

} // namespace

bool DxfFeeder::feed(const std::function<bool(double share)>& progress)
{
    std::size_t nextReport = 0;
    for (std::size_t start = 0; start < m_groups.size();) {
        if (start >= nextReport) {
            if (!progress(static_cast<double>(start) / static_cast<double>(m_groups.size())))
                return false;
            nextReport = start + m_groups.size() / 100 + 1;
        }
        const Range range = objectAt(start);
        feedObject(range);
        start = range.second;
    }
    m_records.finish();
    return true;
}

DxfFeeder::Range DxfFeeder::objectAt(std::size_t start) const
{
    std::size_t end = start + 1;
    while (end < m_groups.size() && m_groups[end].code != 0)
        ++end;
    return {start, end};
}

void DxfFeeder::feedObject(const Range& range)
{
    const DxfGroup& first = m_groups[range.first];
    const std::string_view type = first.value;
    if (first.code == 0 && type == "SECTION") {
        m_section = valueOf(groupsOf(range), 2);
        feedGroup(0, type);
        if (m_section == "HEADER") { // all of its variables are a part of this object
            m_records.noteHeader(groupsOf(range));
            for (std::size_t i = range.first + 2; i < range.second; ++i)
                feedValue(type, m_groups[i]);
        }
    } else if (first.code == 0 && isOneOf(type, {"ENDSEC", "EOF"})) {
        feedGroup(0, type);
        m_builder.endBlock();
        m_section = {};
    } else if (m_section == "TABLES" || m_section == "OBJECTS") {
        if (m_section == "TABLES" && isOneOf(type, {"LAYER", "LTYPE", "STYLE"}))
            for (std::size_t i = range.first; i < range.second; ++i)
                feedValue(type, m_groups[i]);
        else
            feedGroup(0, "SKIPPED");
        m_records.note(groupsOf(range));
    } else if (m_section == "BLOCKS" || m_section == "ENTITIES") {
        feedEntity(range, type);
    }
}

void DxfFeeder::feedEntity(const Range& range, std::string_view type)
{
    const bool isBlockMark = m_section == "BLOCKS" && isOneOf(type, {"BLOCK", "ENDBLK"});
    if (type == "DIMENSION" && !valueOf(groupsOf(range), 2).empty()) {
        feedDimension(range);
    } else if (!isBlockMark && !isEntity(type)) {
        if (type != "VIEWPORT") // a part of a layout, which is read by who wants it
            ++m_skipped[std::string(type)];
        feedGroup(0, "SKIPPED");
    } else {
        feedGroup(0, type);
        // Not before: the former entity is built only now.
        m_builder.setTransparency(valueOf(groupsOf(range), 440));
        if (type == "LEADER")
            m_builder.setLeaderStyle(valueOf(groupsOf(range), 3));
        feedCounts(range, type);
        bool hasPoint = false;
        for (std::size_t i = range.first + 1; i < range.second; ++i) {
            hasPoint = hasPoint || m_groups[i].code == 10;
            // A bulge before the first vertex would be written in front of dxflib's array.
            if (type != "LWPOLYLINE" || m_groups[i].code != 42 || hasPoint)
                feedValue(type, m_groups[i]);
        }
    }
}

void DxfFeeder::feedCounts(const Range& range, std::string_view type)
{
    for (const auto& [countCode, code] : countsOf(type)) {
        const auto count = std::count_if(m_groups.begin() + static_cast<std::ptrdiff_t>(range.first),
                                         m_groups.begin() + static_cast<std::ptrdiff_t>(range.second),
                                         [counted = code](const DxfGroup& group) { return group.code == counted; });
        feedGroup(countCode, std::to_string(count));
    }
}

void DxfFeeder::feedDimension(const Range& range)
{
    // A dimension names the block of the lines and texts that show it.
    feedGroup(0, "INSERT");
    m_builder.setTransparency(valueOf(groupsOf(range), 440));
    for (std::size_t i = range.first + 1; i < range.second; ++i)
        if (const int code = m_groups[i].code;
            code == 2 || code == 6 || code == 8 || code == 62 || code == 67 || code == 370 || code == 420)
            feedGroup(code, m_groups[i].value);
}

void DxfFeeder::feedValue(std::string_view type, const DxfGroup& group)
{
    constexpr int thickness = 39; // which dxflib takes for a lineweight
    constexpr int variable = 9;   // which dxflib takes for the end of any object
    if (group.code >= lastCode || (m_section != "HEADER" && (group.code == variable || group.code == thickness)))
        return;
    for (const auto& [countCode, code] : countsOf(type))
        if (group.code == countCode)
            return;
    std::string_view value = group.value;
    if (type == "MTEXT" && (group.code == 1 || group.code == 3))
        for (; value.size() > longestValue; value.remove_prefix(longestValue))
            feedGroup(3, value.substr(0, longestValue));
    feedGroup(group.code, value.substr(0, longestValue));
}

void DxfFeeder::feedGroup(int code, std::string_view value)
{
    m_lines = std::to_string(code);
    m_lines += '\n';
    m_lines += value;
    m_lines += '\n';
    m_buffer.setText(m_lines);
    m_stream.clear();
    m_dxf->readDxfGroups(m_stream, &m_builder);
}

DxfRecords::Groups DxfFeeder::groupsOf(const Range& range) const
{
    return DxfRecords::Groups(m_groups).subspan(range.first, range.second - range.first);
}

} // namespace workbench
