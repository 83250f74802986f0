#include "velm/table/columnpersistence.h"

#include "velm/bridge/conversions.h"
#include "velm/table/columns.h"

#include <algorithm>
#include <limits>
#include <set>

namespace velm::columnpersistence {
namespace {
int toInt(long value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<long>(value, Limits::min(), Limits::max()));
}

void writeAt(const QString& columnId, const ColumnState& state, int position, const QString& dialogId)
{
    if (!columnId.isEmpty())
        writeColumnDataToRegistry(wxFromQt(columnId), state.visible ? state.width : 0, position, wxFromQt(dialogId));
}
} // namespace

std::optional<SavedColumn> read(const QString& columnId, const SavedColumn& header, const QString& dialogId)
{
    if (columnId.isEmpty())
        return std::nullopt;
    bool hidden = !header.visible;
    long position = 0;
    const long width = readColumnDataFromRegistry(wxFromQt(columnId), header.width, header.position, hidden, position,
                                                  wxFromQt(dialogId));
    return SavedColumn{width == 0 ? header.width : toInt(width), toInt(position), !hidden};
}

void write(const QString& columnId, const ColumnState& state, const QString& dialogId)
{
    writeAt(columnId, state, state.position, dialogId);
}

void writeAll(std::vector<NamedState> columns, const QString& dialogId)
{
    const std::vector<wxString> saved = getSavedColumnDataList(wxFromQt(dialogId));
    std::set<wxString> foreign(saved.begin(), saved.end());
    for (const NamedState& column : columns)
        foreign.erase(wxFromQt(column.columnId));

    // The stored widths, which are compared with positions below: this must stay.
    std::vector<long> taken;
    for (const wxString& name : foreign) {
        bool hidden = false;
        long position = 0;
        const long width = readColumnDataFromRegistry(name, 80, 0, hidden, position, wxFromQt(dialogId));
        if (!hidden)
            taken.push_back(width);
    }
    std::sort(taken.begin(), taken.end());

    std::stable_sort(columns.begin(), columns.end(), [](const NamedState& left, const NamedState& right) {
        return left.state.position < right.state.position;
    });
    std::size_t passed = 0;
    for (const NamedState& column : columns) {
        int position = column.state.position + static_cast<int>(passed);
        while (passed < taken.size() && taken[passed] <= position) {
            ++position;
            ++passed;
        }
        writeAt(column.columnId, column.state, position, dialogId);
    }
}
} // namespace velm::columnpersistence
