#include "filter/valuejson.h"

#include "filter/standardcolors.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/drawingprops/ilineweightmodel.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace workbench {
namespace {
using velm::AbstractFilterPropertiesModel;
using Type = velm::filter::EDefaultValueType;

const QString numberKey = QStringLiteral("number");
const QString textKey = QStringLiteral("text");

bool isInt(const QJsonValue& json)
{
    return json.isDouble() && json.toDouble() == json.toInt();
}

/// What stands for a choice everywhere; nothing for one that isn't there.
std::optional<qint64> choiceNumber(const AbstractFilterPropertiesModel& properties, int row, Type type, int index)
{
    if (type == Type::Enum || type == Type::EnumMultiple)
        return index >= 0 && index < properties.getValues(row).size() ? std::optional<qint64>(index) : std::nullopt;
    if (type == Type::LineWeight) {
        const velm::ILineWeightModel* lineWeights = properties.getLineWeightModel();
        return lineWeights ? lineWeights->lineWeight(index) : std::nullopt;
    }
    const std::vector<OdCmColor> colors = standardColors(properties.getColorModel());
    const auto place = static_cast<std::size_t>(index);
    return place < colors.size() ? std::optional<qint64>(colors[place].color()) : std::nullopt;
}

QJsonValue choiceToJson(const AbstractFilterPropertiesModel& properties, int row, Type type, const QVariant& value)
{
    bool isIndex = false;
    const int index = value.toInt(&isIndex);
    if (!isIndex)
        return {};
    const std::optional<qint64> number = choiceNumber(properties, row, type, index);
    if (!number)
        return {};
    const bool isList = type == Type::Color || type == Type::EnumMultiple;
    const QVariant single = isList ? QVariant(QVariantList{index}) : QVariant(index);
    return QJsonObject{{numberKey, *number}, {textKey, properties.valueToString(row, single)}};
}

std::optional<int> colorFromJson(velm::IColorModel* colors, qint64 packed)
{
    const OdCmColor color(static_cast<std::uint32_t>(packed));
    const bool isColor = color.isByLayer() || color.isByBlock() || color.isByColor() || color.isByACI();
    return isColor ? numberOfColor(colors, color) : std::nullopt;
}

std::optional<int> choiceFromJson(const AbstractFilterPropertiesModel& properties, int row, Type type,
                                  const QJsonValue& json)
{
    const QJsonValue number = json[numberKey];
    if (type == Type::Enum || type == Type::EnumMultiple) {
        const QStringList choices = properties.getValues(row);
        // Earlier files hold the word alone.
        const auto index = json.isString() ? choices.indexOf(json.toString()) : isInt(number) ? number.toInt() : -1;
        return index < 0 || index >= choices.size() ? std::nullopt : std::optional<int>(static_cast<int>(index));
    }
    if (type == Type::Color)
        return colorFromJson(properties.getModel(row).value<velm::IColorModel*>(), number.toInteger());
    const velm::ILineWeightModel* lineWeights = properties.getLineWeightModel();
    return lineWeights && isInt(number) ? lineWeights->indexOf(number.toInt()) : std::nullopt;
}

/// For the one who reads the list of what is missing.
QString textOf(const QJsonValue& json)
{
    if (json.isArray()) {
        QStringList texts;
        for (const QJsonValue item : json.toArray())
            texts.append(textOf(item));
        return texts.join(QStringLiteral(", "));
    }
    return json.isObject() ? json[textKey].toString() : json.toVariant().toString();
}

bool isText(const QJsonValue& json)
{
    return json.isString();
}

/// The value of a kind that holds no choice; nothing when it is of another kind.
std::optional<QVariant> plainFromJson(Type type, const QJsonValue& json)
{
    if (type == Type::String && json.isString())
        return json.toString();
    if (type == Type::Real && json.isDouble())
        return json.toDouble();
    if ((type == Type::Integer || type == Type::Transparency) && isInt(json))
        return json.toInt();
    if (type == Type::Boolean && json.isBool())
        return json.toBool();
    const QJsonArray items = json.toArray();
    if (type == Type::StringMultiple && json.isArray() && std::all_of(items.begin(), items.end(), isText))
        return json.toVariant().toStringList();
    return {};
}

std::optional<QVariant> listFromJson(const AbstractFilterPropertiesModel& properties, int row, Type type,
                                     const QJsonArray& items, QStringList& missing)
{
    QVariantList choices;
    for (const QJsonValue item : items) {
        if (const std::optional<int> choice = choiceFromJson(properties, row, type, item))
            choices.append(*choice);
        else
            missing.append(textOf(item));
    }
    return choices.isEmpty() && !items.isEmpty() ? std::nullopt : std::optional<QVariant>(choices);
}
} // namespace

QVariant freeValue(const QJsonValue& json)
{
    return json.isNull() ? QVariant() : json.toVariant();
}

QJsonValue valueToJson(const AbstractFilterPropertiesModel& properties, int row, const QVariant& value)
{
    const std::optional<Type> type = velm::filter::getDefaultValueType(properties.getValueType(row));
    if (!value.isValid() || !type)
        return QJsonValue::fromVariant(value);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    switch (*type) {
    case Type::String:
        return value.toString();
    case Type::StringMultiple:
        return QJsonArray::fromStringList(value.toStringList());
    case Type::Real:
    case Type::Integer:
    case Type::Transparency:
        return isNumber ? QJsonValue(number) : QJsonValue();
    case Type::Boolean:
        return value.toBool();
    case Type::Enum:
    case Type::LineWeight:
        return choiceToJson(properties, row, *type, value);
    case Type::EnumMultiple:
    case Type::Color: {
        QJsonArray choices;
        for (const QVariant& item : value.toList())
            if (const QJsonValue choice = choiceToJson(properties, row, *type, item); !choice.isNull())
                choices.append(choice);
        return choices;
    }
    }
    return {};
}

std::optional<QVariant> valueFromJson(const AbstractFilterPropertiesModel& properties, int row, const QJsonValue& json,
                                      QStringList& missing)
{
    const std::optional<Type> type = velm::filter::getDefaultValueType(properties.getValueType(row));
    if (json.isNull() || !type)
        return freeValue(json);
    if ((type == Type::EnumMultiple || type == Type::Color) && json.isArray())
        return listFromJson(properties, row, *type, json.toArray(), missing);
    std::optional<QVariant> value;
    if (type == Type::Enum || type == Type::LineWeight)
        value = choiceFromJson(properties, row, *type, json);
    else
        value = plainFromJson(*type, json);
    if (!value)
        missing.append(textOf(json));
    return value;
}
} // namespace workbench
