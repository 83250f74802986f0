#include "filter/entitycondition.h"

#include "filter/standardcolors.h"
#include "od/oddbdatabase.h"
#include "velm/drawingprops/ilineweightmodel.h"
#include "velm/filter/valuetypes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace workbench {
namespace {
using Operators = velm::FilterOperatorsModel;
using Kind = velm::filter::EDefaultValueType;

/// Pages give whole numbers as integers.
std::optional<double> toNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        if (const double number = value.toDouble(); std::isfinite(number))
            return number;
        return {};
    default:
        return {};
    }
}

std::optional<int> toIndex(const QVariant& value)
{
    const std::optional<double> number = toNumber(value);
    if (!number || *number < 0.0 || *number > std::numeric_limits<int>::max() || *number != std::floor(*number))
        return {};
    return static_cast<int>(*number);
}

QVariantList toItems(const QVariant& value)
{
    return value.typeId() != QMetaType::QString && value.canConvert<QVariantList>() ? value.toList() : QVariantList();
}

QStringList wantedTexts(Kind kind, const QVariant& value)
{
    QStringList result;
    for (const QVariant& item : kind == Kind::String ? QVariantList{value} : toItems(value))
        if (item.typeId() == QMetaType::QString)
            result.append(item.toString().toCaseFolded());
    return result;
}

/// What a choice of that index is in the records.
std::optional<int> choiceAt(const EntityFilterProperties& properties, int property, Kind kind, int index)
{
    if (kind == Kind::LineWeight) {
        const velm::ILineWeightModel* lineWeights = properties.getLineWeightModel();
        return lineWeights ? lineWeights->lineWeight(index) : std::nullopt;
    }
    if (kind == Kind::Color) {
        const std::vector<OdCmColor> colors = standardColors(properties.getColorModel());
        const auto place = static_cast<std::size_t>(index);
        return place < colors.size() ? std::optional(static_cast<int>(colors[place].color())) : std::nullopt;
    }
    return index < properties.getValues(property).size() ? std::optional(index) : std::nullopt;
}

std::vector<int> wantedChoices(const EntityFilterProperties& properties, int property, Kind kind, const QVariant& value)
{
    if (kind == Kind::Boolean)
        return value.typeId() == QMetaType::Bool ? std::vector{int(value.toBool())} : std::vector<int>();
    std::vector<int> result;
    const bool isList = kind == Kind::EnumMultiple || kind == Kind::Color;
    for (const QVariant& item : isList ? toItems(value) : QVariantList{value})
        if (const std::optional<int> index = toIndex(item))
            if (const std::optional<int> choice = choiceAt(properties, property, kind, *index))
                result.push_back(*choice);
    return result;
}

/// Behind the character at a place, which may take two units.
qsizetype next(QStringView text, qsizetype at)
{
    const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return at + (isPair ? 2 : 1);
}

bool matchesWildcards(QStringView text, QStringView pattern)
{
    qsizetype at = 0;
    qsizetype inPattern = 0;
    qsizetype star = -1;  // the last one that was passed
    qsizetype behind = 0; // where the text goes on behind what the star stands for
    while (at < text.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == u'*') {
            star = inPattern++;
            behind = at;
        } else if (inPattern < pattern.size() && pattern[inPattern] == u'?') {
            at = next(text, at);
            ++inPattern;
        } else if (inPattern < pattern.size() && pattern[inPattern] == text[at]) {
            ++at;
            ++inPattern;
        } else if (star >= 0) {
            at = behind = next(text, behind);
            inPattern = star + 1;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + inPattern, pattern.end(), [](QChar character) { return character == u'*'; });
}

bool isNegative(Operators::Operator operation)
{
    return operation == Operators::IsNot || operation == Operators::DoesNotContain ||
           operation == Operators::DoesNotMatch;
}

bool suits(int operation, Kind kind)
{
    const auto operators = Operators::getOperatorsForCategory(velm::filter::getOperatorCategoryType(kind));
    return std::ranges::find(operators, operation) != operators.end();
}

template <typename Predicate>
std::size_t keepIf(std::uint32_t* rows, std::size_t count, Predicate predicate)
{
    std::size_t kept = 0;
    // Without a branch: which rows hold can't be foretold.
    for (std::size_t at = 0; at < count; ++at) {
        const std::uint32_t row = rows[at];
        rows[kept] = row;
        kept += predicate(row);
    }
    return kept;
}
} // namespace

EntityCondition::EntityCondition(const EntityRecords& records, const EntityFilterProperties& properties,
                                 const velm::FilterTagData& tag)
{
    if (tag.propertyIndex < 0 || tag.propertyIndex >= EntityFilterProperties::PropertyCount)
        return;
    const auto property = static_cast<EntityRecords::Property>(tag.propertyIndex);
    const Kind kind = EntityFilterProperties::valueType(property);
    if (!suits(tag.operation, kind))
        return;
    const auto operation = static_cast<Operator>(tag.operation);
    m_codes = records.codes(property).data();
    m_numbers = records.numbers(property).data();
    switch (kind) {
    case Kind::Real:
    case Kind::Integer:
    case Kind::Transparency:
        compareNumbers(operation, tag.value);
        break;
    case Kind::String:
    case Kind::StringMultiple:
        decideTexts(records.foldedTexts(property), operation, wantedTexts(kind, tag.value));
        break;
    default:
        decideChoices(records.choices(property), operation,
                      wantedChoices(properties, tag.propertyIndex, kind, tag.value));
    }
}

void EntityCondition::compareNumbers(Operator operation, const QVariant& value)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::optional<double> number = toNumber(value);
    if (!number)
        return;
    const double tolerance = 1e-9 * std::max(1.0, std::abs(*number));
    const double low = *number - tolerance;
    const double high = *number + tolerance;
    m_test = operation == Operators::NotEqual ? Test::Outside : Test::Inside;
    m_low = operation == Operators::Greater                                       ? std::nextafter(high, infinity)
            : operation == Operators::Less || operation == Operators::LessOrEqual ? -infinity
                                                                                  : low;
    m_high = operation == Operators::Less ? std::nextafter(low, -infinity)
             : operation == Operators::Greater || operation == Operators::GreaterOrEqual ? infinity
                                                                                         : high;
}

template <typename Value, typename Predicate>
void EntityCondition::decide(const std::vector<Value>& values, bool negative, Predicate predicate)
{
    m_test = Test::Code;
    m_holds = {negative};
    for (const Value& value : values)
        m_holds.push_back(predicate(value) != negative);
}

void EntityCondition::decideTexts(const std::vector<QString>& folded, Operator operation, const QStringList& wanted)
{
    if (wanted.empty())
        return;
    decide(folded, isNegative(operation), [&](const QString& text) {
        return std::ranges::any_of(wanted, [&](const QString& item) {
            if (operation == Operators::Contains || operation == Operators::DoesNotContain)
                return text.contains(item);
            if (operation == Operators::Matches || operation == Operators::DoesNotMatch)
                return matchesWildcards(text, item);
            return text == item;
        });
    });
}

void EntityCondition::decideChoices(const std::vector<int>& choices, Operator operation, const std::vector<int>& wanted)
{
    if (wanted.empty())
        return;
    decide(choices, isNegative(operation),
           [&](int choice) { return std::ranges::find(wanted, choice) != wanted.end(); });
}

std::size_t EntityCondition::keep(std::uint32_t* rows, std::size_t count) const
{
    switch (m_test) {
    case Test::Code:
        return keepIf(rows, count,
                      [codes = m_codes, holds = m_holds.data()](std::uint32_t row) { return holds[codes[row]] != 0; });
    case Test::Inside:
        return keepIf(rows, count, [numbers = m_numbers, low = m_low, high = m_high](std::uint32_t row) {
            return (numbers[row] >= low) & (numbers[row] <= high);
        });
    case Test::Outside: // NaN is neither
        return keepIf(rows, count, [numbers = m_numbers, low = m_low, high = m_high](std::uint32_t row) {
            return (numbers[row] < low) | (numbers[row] > high);
        });
    case Test::Never:
        break;
    }
    return 0;
}
} // namespace workbench
