#include "drawing/dxflayouts.h"

#include "drawing/blocknesting.h"
#include "drawing/dxftext.h"

#include <algorithm>
#include <map>
#include <new>
#include <span>

namespace workbench {

namespace {

using Groups = std::span<const DxfGroup>;

struct Listed
{
    DxfLayout layout;
    double tab = 0.0;
    std::string_view block; // its handle
};

double numberIn(Groups object, int code)
{
    return numberOf(valueOf(object, code));
}

void noteLayout(Groups object, bool isUtf8, std::vector<Listed>& layouts)
{
    // What stands before are the settings of its plot.
    const auto isOwnPart = [](const DxfGroup& group) { return group.code == 100 && group.value == "AcDbLayout"; };
    const auto begin = std::find_if(object.begin(), object.end(), isOwnPart);
    if (begin == object.end())
        return;
    const Groups own(begin, object.end());
    OdString name = decodeDxfText(valueOf(own, 1), isUtf8);
    if (!name.isEmpty())
        layouts.push_back({{std::move(name), {}}, numberIn(own, 71), valueOf(own, 330)});
}

void noteViewport(Groups object, std::map<std::string_view, Box>& shown)
{
    const double paperHeight = numberIn(object, 41);
    const double height = numberIn(object, 45);
    const bool isPaper = valueOf(object, 69) == "1"; // which shows the sheet itself
    const bool looksDown = numberIn(object, 16) == 0.0 && numberIn(object, 26) == 0.0;
    if (isPaper || !looksDown || !(paperHeight > 0.0) || !(height > 0.0))
        return;
    const double width = height * numberIn(object, 40) / paperHeight;
    const double x = numberIn(object, 17) + numberIn(object, 12);
    const double y = numberIn(object, 27) + numberIn(object, 22);
    Box& box = shown[valueOf(object, 330)];
    box.add(x - width / 2.0, y - height / 2.0);
    box.add(x + width / 2.0, y + height / 2.0);
}

std::vector<DxfLayout> layoutsIn(const DxfGroups& file)
{
    std::vector<Listed> layouts;
    std::map<std::string_view, Box> shown; // by the handles of the blocks
    const Groups groups(file.groups);
    for (std::size_t start = 0; start < groups.size();) {
        std::size_t end = start + 1;
        while (end < groups.size() && groups[end].code != 0)
            ++end;
        const Groups object = groups.subspan(start, end - start);
        if (groups[start].value == "LAYOUT")
            noteLayout(object, file.isUtf8, layouts);
        else if (groups[start].value == "VIEWPORT")
            noteViewport(object, shown);
        start = end;
    }
    std::ranges::stable_sort(layouts, {}, &Listed::tab);
    std::vector<DxfLayout> result;
    for (Listed& listed : layouts) {
        if (const auto box = shown.find(listed.block); box != shown.end())
            listed.layout.shown = box->second;
        result.push_back(std::move(listed.layout));
    }
    return result;
}

/// The layouts, the viewports, and what checkBlockNesting() looks at.
bool isNeeded(std::string_view section, std::string_view type)
{
    return type == "SECTION" || type == "LAYOUT" || type == "VIEWPORT" ||
           (section == "BLOCKS" && (type == "BLOCK" || type == "INSERT" || type == "DIMENSION"));
}

} // namespace

std::vector<DxfLayout> readDxfLayouts(const OdString& fileName, const std::stop_token& stop)
{
    try {
        DxfGroups file;
        loadDxfGroups(
            pathOf(fileName), [&](double) { return !stop.stop_requested(); }, file, isNeeded);
        if (file.cancelled)
            return {};
        checkBlockNesting(file);
        return layoutsIn(file);
    } catch (const DxfError&) {
        return {};
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace workbench
