#pragma once

#include "filter/entityfilterfactories.h"
#include "od/odcmcolor.h"
#include "velm/filter/ientityfilterpropertiesmodel.h"

#include <vector>

namespace workbench {
class Selection;

/// The properties of entities that a filter may test. The layers, linetypes and blocks of the current drawing are only
/// suggested as values: a filter means the same in any drawing. A bad row gives empty values.
class EntityFilterProperties : public velm::IEntityFilterPropertiesModel
{
    Q_OBJECT
public:
    /// The rows.
    enum Property
    {
        Type,
        Layer,
        LayerDescription,
        Color, ///< the entity's own, which may be by layer
        Linetype,
        LineWeight,
        Transparency,
        Visible, ///< its layer is on and not frozen
        Length,
        Radius,
        Vertices,
        Area,
        Closed,
        TextContent,
        TextHeight,
        TextAlignment,
        BlockName,
        PropertyCount
    };

    explicit EntityFilterProperties(std::shared_ptr<EntityFilterFactories> factories);
    ~EntityFilterProperties() override;

    /// To call after a change of the drawing or of the current document: reads the suggestions and the unit anew.
    void refresh();
    /// Where values are picked from; not owned, null for nowhere.
    void setSelection(const Selection* selection) { m_selection = selection; }
    static velm::filter::EDefaultValueType valueType(Property property);

    int getNrProperties() const override;
    QStringList getValues(int index) const override;
    QString getName(int index) const override;
    QString getValueType(int index) const override;
    /// In drawing units, which are inches where the drawing writes feet and inches, and otherwise have no name.
    QString getUnit(int index) const override;
    QStringList getPath(int index) const override;
    /// As "Geometry/Outline/Area [in²]".
    QString getFullPathName(int index, bool withUnit) const override;
    OdString getRegistryId(int index) const override;
    OdString getRegistrySubCategory() const override;
    bool isHierarchical() const override;
    int getIndexByGuid(const ut::UUID& guid) const override;
    std::vector<ut::UUID> getInitialPinnedProperties() const override;
    /// The identity alone tells the property: its path has other names in another language.
    int getIndexByGuidAndPath(const ut::UUID& guid, const OdArray<OdString>& path) const override;
    bool hasPipet() const override;
    /// While one entity is selected.
    bool pipetEnabled() const override;
    /// The value of the selected entity; no success when it has none.
    QVariantMap pipet(int index) override;

    oc::PropertyFilterFactoriesManager* getPropertyFilterFactoriesManager() const override;
    void hostFilterAction1() override {}
    void hostFilterAction2() override {}
    void hostFilterAction3() override {}
    void hostFilterAction4() override {}

private:
    /// What the current drawing gives.
    struct Drawn
    {
        QStringList layers;
        QStringList linetypes;
        QStringList blocks;
        bool hasInches = false;
    };

    Drawn read() const;
    /// Invalid when the selected entity hasn't the property.
    QVariant pickedValue(int index);
    QVariant choiceValue(velm::filter::EDefaultValueType kind, int choice, const OdCmColor& color);

    std::shared_ptr<EntityFilterFactories> m_factories;
    const Selection* m_selection = nullptr; // not owned
    Drawn m_drawn;
};
} // namespace workbench
