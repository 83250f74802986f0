#include "panels/objectfields.h"

#include "drawing/entitykind.h"
#include "od/oddbdatabase.h"
#include "panels/entitytext.h"
#include "velm/bridge/conversions.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <type_traits>

namespace workbench {
namespace {
using Type = ObjectField::Type;

constexpr QChar lineMark(0x23CE);

/// In hundredths of a millimetre.
constexpr std::array lineWeights = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                                    53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Properties)
};

/// A combo box of some values; a present value that is none of them comes last.
template <typename Value>
ObjectField choiceField(const QString& label, std::vector<Value> values, QList<QString> texts, const Value& present,
                        const QString& presentText, std::function<void(const Value&)> apply)
{
    auto found = std::find(values.begin(), values.end(), present);
    const auto index = static_cast<int>(found - values.begin());
    if (found == values.end()) {
        values.push_back(present);
        texts.append(presentText);
    }
    const auto choose = [values, apply = std::move(apply)](const QVariant& value) {
        const int chosen = value.toInt();
        if (chosen >= 0 && chosen < static_cast<int>(values.size()))
            apply(values[static_cast<std::size_t>(chosen)]);
    };
    return {label, Type::ComboBox, index, texts, choose, {}};
}

template <typename Object>
ObjectField colorField(Object& object)
{
    std::vector<OdCmColor> colors;
    QList<QString> texts;
    if constexpr (std::is_same_v<Object, OdDbEntity>) {
        colors = {OdCmColor(OdCmColor::kByLayer), OdCmColor(OdCmColor::kByBlock)};
        texts = {Texts::tr("By layer"), Texts::tr("By block")};
    }
    for (std::uint16_t index = 1; index <= 7; ++index)
        colors.push_back(OdCmColor::fromIndex(index));
    texts += {Texts::tr("Red"),  Texts::tr("Yellow"),  Texts::tr("Green"), Texts::tr("Cyan"),
              Texts::tr("Blue"), Texts::tr("Magenta"), Texts::tr("White")};
    const OdCmColor& present = object.color();
    const QString presentText =
        present.isByColor() ? QStringLiteral("%1, %2, %3").arg(present.red()).arg(present.green()).arg(present.blue())
                            : Texts::tr("Colour %1").arg(present.colorIndex());
    return choiceField<OdCmColor>(Texts::tr("Colour"), std::move(colors), std::move(texts), present, presentText,
                                  [&object](const OdCmColor& color) { object.setColor(color); });
}

QString millimetres(int lineWeight)
{
    return Texts::tr("%1 mm").arg(lineWeight / 100.0, 0, 'f', 2);
}

template <typename Object>
ObjectField lineWeightField(Object& object)
{
    std::vector<int> weights;
    QList<QString> texts;
    if constexpr (std::is_same_v<Object, OdDbEntity>) {
        weights = {OdDb::kLnWtByLayer, OdDb::kLnWtByBlock};
        texts = {Texts::tr("By layer"), Texts::tr("By block")};
    }
    weights.push_back(OdDb::kLnWtByLwDefault);
    texts.append(Texts::tr("Default"));
    for (const int weight : lineWeights) {
        weights.push_back(weight);
        texts.append(millimetres(weight));
    }
    return choiceField<int>(Texts::tr("Lineweight"), std::move(weights), std::move(texts), object.lineWeight(),
                            millimetres(object.lineWeight()), [&object](int weight) { object.setLineWeight(weight); });
}

ObjectField layerField(OdDbEntity& entity)
{
    std::vector<OdDbObjectId> ids;
    QList<QString> names;
    for (const OdDbLayerTableRecord* layer : entity.database()->layers()) {
        ids.push_back(layer->objectId());
        names.append(velm::toQt(layer->getName()));
    }
    return choiceField<OdDbObjectId>(Texts::tr("Layer"), std::move(ids), std::move(names), entity.layerId(),
                                     Texts::tr("None"), [&entity](OdDbObjectId layer) { entity.setLayer(layer); });
}

ObjectField shownField(const QString& label, OdDbLayerTableRecord& layer)
{
    return {label, Type::Switch, !layer.isOff(), {}, [&layer](const QVariant& on) { layer.setIsOff(!on.toBool()); },
            {}};
}

ObjectField textField(OdDbText& text)
{
    const auto apply = [&text](const QVariant& value) {
        text.textString = velm::odFromQt(value.toString().replace(lineMark, QLatin1Char('\n')));
    };
    return {Texts::tr("Text"),
            Type::Text,
            velm::toQt(text.textString).replace(QLatin1Char('\n'), lineMark),
            {},
            apply,
            Texts::tr("The sign %1 ends a line.").arg(lineMark)};
}

ObjectField readOnlyField(const QString& label, const QString& value)
{
    return {label, Type::Text, value, {}, {}, {}};
}

std::vector<ObjectField> entityFields(OdDbEntity& entity)
{
    std::vector<ObjectField> fields;
    if (auto* text = dynamic_cast<OdDbText*>(&entity))
        fields.push_back(textField(*text));
    fields.push_back(layerField(entity));
    if (auto* layer = entity.layerId().open<OdDbLayerTableRecord>())
        fields.push_back(shownField(Texts::tr("Layer shown"), *layer));
    fields.push_back(colorField(entity));
    fields.push_back(lineWeightField(entity));
    for (const EntityMeasure& measure : entityMeasures(entity))
        fields.push_back(readOnlyField(measure.label, measure.value));
    return fields;
}

std::vector<ObjectField> layerFields(OdDbLayerTableRecord& layer)
{
    return {readOnlyField(Texts::tr("Name"), velm::toQt(layer.getName())),
            shownField(Texts::tr("Shown"), layer),
            {Texts::tr("Frozen"),
             Type::CheckBox,
             layer.isFrozen(),
             {},
             [&layer](const QVariant& frozen) { layer.setIsFrozen(frozen.toBool()); },
             {}},
            {Texts::tr("Locked"),
             Type::CheckBox,
             layer.isLocked(),
             {},
             [&layer](const QVariant& locked) { layer.setIsLocked(locked.toBool()); },
             {}},
            colorField(layer),
            lineWeightField(layer)};
}
} // namespace

std::vector<ObjectField> objectFields(OdDbObject& object)
{
    if (auto* entity = dynamic_cast<OdDbEntity*>(&object))
        return entityFields(*entity);
    if (auto* layer = dynamic_cast<OdDbLayerTableRecord*>(&object))
        return layerFields(*layer);
    return {};
}

QString objectTitle(const OdDbObject& object)
{
    if (const auto* entity = dynamic_cast<const OdDbEntity*>(&object))
        return velm::toQt(entityKind(*entity));
    return dynamic_cast<const OdDbLayerTableRecord*>(&object) ? Texts::tr("Layer") : QString();
}
} // namespace workbench
