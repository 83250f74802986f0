#include "drawing/dxfreader.h"

#include "drawing/blocknesting.h"
#include "drawing/dxffeeder.h"

#include <algorithm>
#include <new>

namespace workbench {

namespace {

void read(const std::filesystem::path& file, const std::function<bool(int)>& progress, DxfReadResult& result)
{
    int reported = -1;
    const auto report = [&](double percent) {
        const int whole = std::clamp(static_cast<int>(percent), 0, 100);
        if (whole <= reported || !progress)
            return true;
        reported = whole;
        return progress(whole);
    };
    constexpr double checking = 25.0; // percent of the time, roughly

    DxfGroups groups;
    loadDxfGroups(
        file, [&](double share) { return report(checking * share); }, groups);
    result.cancelled = groups.cancelled;
    if (result.cancelled)
        return;
    checkBlockNesting(groups);
    DatabaseBuilder builder(groups.isUtf8);
    DxfFeeder feeder(groups, builder);
    const auto reportFeeding = [&](double share) { return report(checking + (99.0 - checking) * share); };
    result.cancelled = !feeder.feed(reportFeeding) || !report(100.0);
    if (result.cancelled)
        return;
    result.skipped = feeder.skipped();
    for (const auto& [type, count] : builder.skipped())
        result.skipped[type] += count;
    result.entityCount = builder.entityCount();
    result.database = builder.finish();
}

} // namespace

DxfReadResult readDxf(const OdString& fileName, const std::function<bool(int percent)>& progress)
{
    DxfReadResult result;
    const std::filesystem::path file = pathOf(fileName);
    const auto failed = [&](const char* problem) {
        const OdString name = file.filename().string().c_str();
        result.error = OdString(L"\"") + (name.isEmpty() ? fileName : name) + L"\" can't be read: " + OdString(problem);
    };
    try {
        read(file, progress, result);
    } catch (const DxfError& problem) {
        failed(problem.what());
    } catch (const std::bad_alloc&) {
        failed("there is not enough memory for it.");
    }
    return result;
}

} // namespace workbench
