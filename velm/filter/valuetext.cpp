#include "velm/filter/valuetext.h"

#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/drawingprops/colorobject.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/drawingprops/ilineweightmodel.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"

namespace velm {
namespace {
constexpr int swatchCharacter = 11200; // a filled square in the fonts of the pages

QString choiceText(const QVariant& value, const QStringList& choices)
{
    return value.canConvert<int>() && value.toInt() < choices.size() ? choices.value(value.toInt()) : QString();
}

QStringList choiceTexts(const QVariant& value, const QStringList& choices)
{
    QStringList texts;
    if (!value.canConvert<QVariantList>())
        return texts;
    for (const QVariant& item : value.toList())
        if (const QString text = choiceText(item, choices); !text.isEmpty())
            texts.append(text);
    return texts;
}

QString colorText(const ColorObject& color, bool styledText)
{
    return styledText ? QStringLiteral("<font color='%1'>&#%2;</font> %3")
                            .arg(color.color().name())
                            .arg(swatchCharacter)
                            .arg(color.name().toHtmlEscaped())
                      : color.name();
}

/// The standard colours only, by whose number a tag names them.
QStringList colorTexts(const IColorModel* colors, bool styledText)
{
    QStringList texts;
    for (int row = 0; colors && row < colors->rowCount(); ++row) {
        const ColorObject* color = colors->getColorObject(row);
        if (color && color->getTypeAsEnum() == ColorObject::Type::Standard)
            texts.append(colorText(*color, styledText));
    }
    return texts;
}

QStringList lineWeightTexts(const ILineWeightModel* lineWeights, int row)
{
    const IGuiController* gui = guiController();
    const std::optional<int> lineWeight = lineWeights && gui ? lineWeights->lineWeight(row) : std::nullopt;
    return lineWeight ? QStringList{toQt(gui->lineWeightName(*lineWeight))} : QStringList();
}
} // namespace

QStringList valueTexts(const AbstractFilterPropertiesModel& properties, int propertyIndex, const QVariant& value,
                       bool styledText)
{
    const std::optional<filter::EDefaultValueType> type =
        filter::getDefaultValueType(properties.getValueType(propertyIndex));
    if (!type)
        return {};
    switch (*type) {
    case filter::EDefaultValueType::String:
    case filter::EDefaultValueType::Real:
    case filter::EDefaultValueType::Integer:
    case filter::EDefaultValueType::Transparency:
        return {value.toString()};
    case filter::EDefaultValueType::StringMultiple: {
        QStringList texts;
        for (const QVariant& item : value.toList())
            texts.append(item.toString());
        return texts;
    }
    case filter::EDefaultValueType::Enum:
        return {choiceText(value, properties.getValues(propertyIndex))};
    case filter::EDefaultValueType::EnumMultiple:
        return choiceTexts(value, properties.getValues(propertyIndex));
    case filter::EDefaultValueType::Boolean:
        return {value.toBool() ? QObject::tr("true") : QObject::tr("false")};
    case filter::EDefaultValueType::LineWeight:
        return lineWeightTexts(properties.getLineWeightModel(), value.toInt());
    case filter::EDefaultValueType::Color:
        return choiceTexts(value, colorTexts(properties.getColorModel(), styledText));
    }
    return {};
}

QString nameWithUnit(const AbstractFilterPropertiesModel& properties, int propertyIndex)
{
    const QString name = properties.getName(propertyIndex);
    const QString unit = properties.getUnit(propertyIndex);
    return unit.isEmpty() ? name : name + QStringLiteral(" [") + unit + u']';
}
} // namespace velm
