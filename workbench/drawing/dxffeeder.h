#pragma once

#include "drawing/databasebuilder.h"
#include "drawing/dxfgroups.h"
#include "drawing/dxfrecords.h"

#include <dxflib/dl_dxf.h>

#include <cstddef>
#include <istream>
#include <new>
#include <streambuf>

namespace workbench {

/// Hands a checked file to dxflib group by group, and only what it understands: counts are those of the points that are
/// there, not those that the file claims. The records of tables and the objects go to DxfRecords as well.
class DxfFeeder
{
public:
    DxfFeeder(const DxfGroups& groups, DatabaseBuilder& builder)
        : m_groups(groups.groups), m_builder(builder), m_records(builder)
    {}

    /// False when `progress`, which gets the share from 0 to 1, cancelled it.
    bool feed(const std::function<bool(double share)>& progress);

    const std::map<std::string, int>& skipped() const { return m_skipped; }

private:
    using Range = std::pair<std::size_t, std::size_t>; // of groups, from the one with code 0 to behind the last

    Range objectAt(std::size_t start) const;
    void feedObject(const Range& range);
    void feedEntity(const Range& range, std::string_view type);
    void feedCounts(const Range& range, std::string_view type);
    void feedDimension(const Range& range);
    void feedValue(std::string_view type, const DxfGroup& group);
    void feedGroup(int code, std::string_view value);
    DxfRecords::Groups groupsOf(const Range& range) const;

    /// dxflib leaves unset what object it is reading, and would add one before the first.
    class ZeroedDxf
    {
    public:
        ZeroedDxf() : m_dxf(new (m_memory) DL_Dxf) {}
        ~ZeroedDxf() { m_dxf->~DL_Dxf(); }
        ZeroedDxf(const ZeroedDxf&) = delete;
        ZeroedDxf& operator=(const ZeroedDxf&) = delete;
        DL_Dxf* operator->() { return m_dxf; }

    private:
        alignas(DL_Dxf) std::byte m_memory[sizeof(DL_Dxf)]{};
        DL_Dxf* m_dxf; // in m_memory
    };
    class LineBuffer : public std::streambuf
    {
    public:
        void setText(std::string& text) { setg(text.data(), text.data(), text.data() + text.size()); }
    };

    const std::vector<DxfGroup>& m_groups;
    DatabaseBuilder& m_builder;
    DxfRecords m_records;
    ZeroedDxf m_dxf;
    LineBuffer m_buffer;
    std::istream m_stream{&m_buffer};
    std::string m_lines; // what m_buffer reads
    std::string_view m_section;
    std::map<std::string, int> m_skipped;
};

} // namespace workbench
