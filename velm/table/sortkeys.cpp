#include "velm/table/sortkeymaker.h"

#include "desktop/desktop.h"
#include "od/odstring.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/drawingprops/dimensiontypes.h"
#include "velm/table/cellcomparison.h"
#include "velm/table/cellvalues.h"
#include "velm/table/columns.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace velm {
using namespace cellvalues;
using namespace sortkeys;
using cellcomparison::Kind;
using textranks::Ranks;

namespace {
std::vector<char> notEmpty(const std::vector<QString>& texts)
{
    std::vector<char> result(texts.size());
    std::transform(texts.begin(), texts.end(), result.begin(), [](const QString& text) { return !text.isEmpty(); });
    return result;
}

std::unique_ptr<SortKeys> integerKeys(const Maker& maker)
{
    std::vector<int> numbers(maker.count());
    std::vector<char> present(maker.count());
    for (std::size_t i = 0; i < maker.count(); ++i) {
        const QVariant value = maker.value(i);
        if (value.metaType().id() == QMetaType::Int) { // as its text would give
            numbers[i] = value.toInt();
            present[i] = true;
        } else {
            const wxString text = wxFromQt(value.toString());
            numbers[i] = leadingInteger(text);
            present[i] = !text.empty();
        }
    }
    return maker.keys(std::move(numbers), std::move(present));
}

/// Where some texts are no numbers.
std::unique_ptr<SortKeys> numberAndTextKeys(const Maker& maker)
{
    struct Cell
    {
        double value = 0.0;
        bool isEmpty = true;
        bool isNumber = false;
        std::uint32_t rank = 0; // among the texts
    };
    const std::vector<QString> texts = maker.texts();
    const Ranks ranks = textranks::natural(texts);
    std::vector<Cell> cells(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::optional<double> found = number(wxFromQt(texts[i]));
        cells[i] = {found.value_or(0.0), texts[i].isEmpty(), found.has_value(), ranks[i]};
    }
    return maker.recordKeys(std::move(cells), [](const Cell& left, const Cell& right) {
        if (left.isEmpty || right.isEmpty)
            return false;
        return left.isNumber && right.isNumber ? left.value < right.value : left.rank < right.rank;
    });
}

std::unique_ptr<SortKeys> doubleKeys(const Maker& maker)
{
    // The C locale may have another decimal point; numbers are then no numbers as texts.
    const bool textsHavePoints = number(L"0.5").has_value();
    std::vector<double> numbers(maker.count());
    std::vector<char> present(maker.count(), true);
    for (std::size_t i = 0; i < maker.count(); ++i) {
        const QVariant value = maker.value(i);
        const int type = value.metaType().id();
        // A text of a number below the normal ones is none.
        if (type == QMetaType::Int ||
            (type == QMetaType::Double && textsHavePoints && std::fpclassify(value.toDouble()) != FP_SUBNORMAL)) {
            numbers[i] = value.toDouble();
            continue;
        }
        const wxString text = wxFromQt(value.toString());
        const std::optional<double> found = number(text);
        if (!found && !text.empty())
            return numberAndTextKeys(maker);
        numbers[i] = found.value_or(0.0);
        present[i] = !text.empty();
    }
    return maker.keys(std::move(numbers), std::move(present));
}

std::unique_ptr<SortKeys> fileSizeKeys(const Maker& maker)
{
    struct Cell
    {
        double size = 0.0;
        bool isEmpty = true;
        std::uint32_t rank = 0;    // among the texts
        std::uint32_t cutRank = 0; // among the texts without their units
    };
    std::vector<QString> texts = maker.texts();
    const Ranks ranks = textranks::natural(texts);
    std::vector<Cell> cells(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        wxString text = wxFromQt(texts[i]);
        cells[i].isEmpty = text.empty();
        cells[i].rank = ranks[i];
        cells[i].size = takeFileSize(text);
        texts[i] = toQt(text);
    }
    const Ranks cutRanks = textranks::natural(texts);
    for (std::size_t i = 0; i < texts.size(); ++i)
        cells[i].cutRank = cutRanks[i];
    return maker.recordKeys(std::move(cells), [](const Cell& left, const Cell& right) {
        if (left.isEmpty || right.isEmpty)
            return left.rank < right.rank;
        return left.size == 0.0 || right.size == 0.0 ? left.cutRank < right.cutRank : left.size < right.size;
    });
}

std::unique_ptr<SortKeys> pixelSizeKeys(const Maker& maker)
{
    struct Cell
    {
        double area = 0.0;
        bool isEmpty = true;
        bool hasArea = false;
        std::uint32_t rank = 0;
    };
    const std::vector<QString> texts = maker.texts();
    const Ranks ranks = textranks::natural(texts);
    std::vector<Cell> cells(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const wxString text = wxFromQt(texts[i]);
        const PixelSize size = pixelSize(text);
        cells[i] = {size.area, text.empty(), size.hasComma && size.area >= 0.0, ranks[i]};
    }
    return maker.recordKeys(std::move(cells), [](const Cell& left, const Cell& right) {
        if (left.isEmpty || right.isEmpty)
            return false;
        return left.hasArea && right.hasArea ? left.area < right.area : left.rank < right.rank;
    });
}

std::unique_ptr<SortKeys> toggleDisabledKeys(const Maker& maker)
{
    const std::vector<QString> texts = maker.texts();
    std::vector<wxString> enabled(texts.size());
    std::vector<char> disabled(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        enabled[i] = wxFromQt(texts[i]);
        disabled[i] = isDisabled(enabled[i]);
        if (disabled[i])
            enabled[i].clear(); // all of them are equal
    }
    return maker.keys(textranks::by(texts.size(),
                                    [&](std::uint32_t left, std::uint32_t right) {
                                        if (disabled[left] || disabled[right])
                                            return disabled[left] && !disabled[right];
                                        return enabled[left].CmpNoCase(enabled[right]) < 0;
                                    }),
                      notEmpty(texts));
}

std::unique_ptr<SortKeys> plotStyleKeys(const Maker& maker)
{
    const std::vector<QString> texts = maker.texts();
    if (!plotStyleColorDependent())
        return maker.keys(textranks::natural(texts), notEmpty(texts));
    std::vector<int> numbers(texts.size());
    std::transform(texts.begin(), texts.end(), numbers.begin(),
                   [](const QString& text) { return plotStyleNumber(wxFromQt(text)); });
    return maker.keys(std::move(numbers), notEmpty(texts));
}

std::unique_ptr<SortKeys> dimStyleKeys(const Maker& maker)
{
    const std::vector<QString> texts = maker.texts();
    std::vector<wxString> names(texts.size()); // as DimstyleSorter compares them
    OdDbDatabase* const database = currentDatabase();
    std::transform(texts.begin(), texts.end(), names.begin(),
                   [database](const QString& text) { return toDisplayName(odFromQt(text).wide(), database); });
    return maker.keys(textranks::by(names.size(),
                                    [&](std::uint32_t left, std::uint32_t right) {
                                        return _wcsicoll(names[left].wc_str(), names[right].wc_str()) < 0;
                                    }),
                      notEmpty(texts));
}

/// Null when a value is of another kind.
template <typename Get>
std::unique_ptr<SortKeys> typedKeys(const Maker& maker, Kind kind, Get get)
{
    std::vector<std::invoke_result_t<Get, const QVariant&>> keys(maker.count());
    std::vector<char> present(maker.count(), true);
    for (std::size_t i = 0; i < maker.count(); ++i) {
        const QVariant value = maker.value(i);
        present[i] = value.isValid();
        if (!present[i])
            continue;
        if (cellcomparison::kindOf(value) != kind)
            return nullptr;
        keys[i] = get(value);
    }
    if constexpr (std::is_same_v<std::invoke_result_t<Get, const QVariant&>, QString>)
        return maker.keys<Absent::Last>(textranks::natural(keys), std::move(present));
    else
        return maker.keys<Absent::Last>(std::move(keys), std::move(present));
}

std::unique_ptr<SortKeys> keysOfKind(const Maker& maker, Kind kind)
{
    switch (kind) {
    case Kind::Int:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toInt(); });
    case Kind::UInt:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toUInt(); });
    case Kind::LongLong:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toLongLong(); });
    case Kind::ULongLong:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toULongLong(); });
    case Kind::Double:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toDouble(); });
    case Kind::Float:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toFloat(); });
    case Kind::Char:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toChar(); });
    case Kind::Date:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toDate(); });
    case Kind::Time:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toTime(); });
    case Kind::DateTime:
        return typedKeys(maker, kind, [](const QVariant& value) { return value.toDateTime(); });
    case Kind::None:
    case Kind::Text:
        break;
    }
    return typedKeys(maker, kind, [](const QVariant& value) { return value.toString(); });
}

std::unique_ptr<SortKeys> mixedKeys(const Maker& maker)
{
    struct Cell
    {
        QVariant value;
        std::uint32_t rank = 0; // among the texts
    };
    const Ranks ranks = textranks::natural(maker.texts());
    std::vector<Cell> cells(maker.count());
    for (std::size_t i = 0; i < cells.size(); ++i)
        cells[i] = {maker.value(i), ranks[i]};
    return maker.recordKeys(std::move(cells), [](const Cell& left, const Cell& right) {
        return cellcomparison::valuesLessThan(left.value, right.value, [&] { return left.rank < right.rank; });
    });
}

std::unique_ptr<SortKeys> valueKeys(const Maker& maker)
{
    Kind first = Kind::None;
    for (std::size_t i = 0; i < maker.count() && first == Kind::None; ++i)
        first = cellcomparison::kindOf(maker.value(i));
    std::unique_ptr<SortKeys> keys = keysOfKind(maker, first);
    return keys ? std::move(keys) : mixedKeys(maker);
}
} // namespace

SortKeys::~SortKeys() = default;

std::unique_ptr<SortKeys> makeSortKeys(const SortedCells& cells, int sortType,
                                       const std::function<bool(const QModelIndex&, const QModelIndex&)>& baseLessThan)
{
    const Maker maker(cells);
    switch (sortType) {
    case SortAlphanumeric:
    case SortAlphanumericAlt:
        return maker.keys(textranks::natural(maker.texts()));
    case SortDecoration:
        return maker.keys(textranks::natural(maker.texts(Qt::DecorationRole)));
    case SortCaseInsensitive:
        return maker.keys(textranks::caseInsensitive(maker.texts()));
    case SortProxyDefault:
    case SortProxyDefaultAlt:
        return maker.base(baseLessThan);
    case SortInteger:
        return integerKeys(maker);
    case SortDouble:
        return doubleKeys(maker);
    case SortFileSize:
        return fileSizeKeys(maker);
    case SortToggleDisabled:
        return toggleDisabledKeys(maker);
    case SortPlotStyle:
        return plotStyleKeys(maker);
    case SortPixelSize:
        return pixelSizeKeys(maker);
    case SortDimStyle:
        return dimStyleKeys(maker);
    default:
        return valueKeys(maker);
    }
}

std::unique_ptr<SortKeys> makeSortKeys(Ranks ranks)
{
    return std::make_unique<ValueKeys<std::uint32_t, Absent::Last>>(std::move(ranks), std::vector<char>());
}
} // namespace velm
