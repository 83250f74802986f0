#include "panels/objectfields.h"

#include "drawing/entitykind.h"
#include "od/oddbdatabase.h"
#include "panels/entitytext.h"
#include "panels/propertytexts.h"
#include "velm/bridge/conversions.h"

#include <QCoreApplication>

#include <algorithm>
#include <type_traits>

namespace workbench {
namespace {
using Type = ObjectField::Type;

constexpr QChar lineMark(0x23CE);

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Properties)
};

template <typename Object>
ObjectField makeColorField(Object& object)
{
    std::vector<OdCmColor> colors;
    if constexpr (std::is_same_v<Object, OdDbEntity>)
        colors = {OdCmColor(OdCmColor::kByLayer), OdCmColor(OdCmColor::kByBlock)};
    for (std::uint16_t index = 1; index <= 7; ++index)
        colors.push_back(OdCmColor::fromIndex(index));
    return choiceField<OdCmColor>(Texts::tr("Colour"), std::move(colors), colorText, object.color(),
                                  [&object](const OdCmColor& color) { object.setColor(color); });
}

template <typename Object>
ObjectField makeLineWeightField(Object& object)
{
    const std::span<const int> all = lineWeights();
    std::vector<int> weights(all.begin(), all.end());
    // A layer has nothing to take these from.
    if constexpr (!std::is_same_v<Object, OdDbEntity>)
        std::erase_if(weights, [](int weight) { return weight == OdDb::kLnWtByLayer || weight == OdDb::kLnWtByBlock; });
    return choiceField<int>(Texts::tr("Lineweight"), std::move(weights), lineWeightText, object.lineWeight(),
                            [&object](int weight) { object.setLineWeight(weight); });
}

ObjectField transparencyField(OdDbEntity& entity)
{
    std::vector<int> transparencies{OdDb::kTransparencyByLayer, OdDb::kTransparencyByBlock};
    for (int percent = 0; percent <= 90; percent += 10)
        transparencies.push_back(percent);
    return choiceField<int>(Texts::tr("Transparency"), std::move(transparencies), transparencyText,
                            entity.transparency(),
                            [&entity](int transparency) { entity.setTransparency(transparency); });
}

ObjectField layerField(OdDbEntity& entity)
{
    return choiceField<OdDbObjectId>(Texts::tr("Layer"), idsOf(entity.database()->layers()), recordText,
                                     entity.layerId(), [&entity](OdDbObjectId layer) { entity.setLayer(layer); });
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
    fields.push_back(makeColorField(entity));
    fields.push_back(makeLineWeightField(entity));
    fields.push_back(transparencyField(entity));
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

QString recordText(OdDbObjectId id)
{
    const auto* record = id.open<OdDbSymbolTableRecord>();
    return record ? velm::toQt(record->getName()) : Texts::tr("None");
}

ObjectField colorField(OdDbLayerTableRecord& layer)
{
    return makeColorField(layer);
}

ObjectField lineWeightField(OdDbLayerTableRecord& layer)
{
    return makeLineWeightField(layer);
}

OdDbObjectId layerLinetype(const OdDbLayerTableRecord& layer)
{
    const OdDbLinetypeTableRecord* continuous = layer.database()->findLinetype(L"Continuous");
    return layer.linetypeObjectId().isNull() && continuous ? continuous->objectId() : layer.linetypeObjectId();
}

ObjectField linetypeField(OdDbLayerTableRecord& layer)
{
    std::vector<OdDbLinetypeTableRecord*> linetypes = layer.database()->linetypes();
    // A layer has nothing to take these from.
    std::erase_if(linetypes, [](const OdDbLinetypeTableRecord* linetype) {
        return linetype->getName() == OdString(L"ByLayer") || linetype->getName() == OdString(L"ByBlock");
    });
    return choiceField<OdDbObjectId>(Texts::tr("Linetype"), idsOf(linetypes), recordText, layerLinetype(layer),
                                     [&layer](OdDbObjectId linetype) { layer.setLinetypeObjectId(linetype); });
}

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
