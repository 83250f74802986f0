#pragma once

#include "velm/bridge/qtcontrollerwrapper.h"
#include "velm/bridge/qtwindowparent.h"
#include "velm/bridge/urlandcontroller.h"
#include "velm/dialogs/addrenamedialogcontroller.h"
#include "velm/dialogs/basedialogcontroller.h"
#include "velm/dialogs/basepopupcontroller.h"
#include "velm/dialogs/commandcontextdialogcontroller.h"
#include "velm/dialogs/namedialogcontroller.h"
#include "velm/dialogs/transientpopupcore.h"
#include "velm/drawingprops/arrowheadmodel.h"
#include "velm/drawingprops/colormodel.h"
#include "velm/drawingprops/linetypemodel.h"
#include "velm/drawingprops/lineweightmodel.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/componenturlwithsettings.h"
#include "velm/filter/filterlistmodel.h"
#include "velm/filter/filtermanagerbuttonscontroller.h"
#include "velm/filter/filteroperatorsmodel.h"
#include "velm/filter/filterpopupcontroller.h"
#include "velm/filter/filtertagsconjunctionmodel.h"
#include "velm/filter/filtertagsmodel.h"
#include "velm/filter/loadfiltercontroller.h"
#include "velm/filter/pinnedpropertiesmodel.h"
#include "velm/services/webdocutils.h"
#include "velm/units/fixingdoublevalidator.h"
#include "velm/units/fixingintvalidator.h"
#include "velm/units/qtfontconfig.h"
#include "velm/units/settings.h"
#include "velm/units/uidevsettingsmodel.h"
#include "velm/units/unitsinputcontroller.h"

#include <QtQml/qqmlregistration.h>

/// The types of the library as QML sees them. The library registers nothing by itself.
namespace velmqml {
/// The singletons come from their own factories, which keep them out of the engine's hands.
struct SettingsType
{
    Q_GADGET
    QML_FOREIGN(velm::Settings)
    QML_NAMED_ELEMENT(Settings)
    QML_SINGLETON
};

struct QtFontConfigType
{
    Q_GADGET
    QML_FOREIGN(velm::QtFontConfig)
    QML_NAMED_ELEMENT(QtFontConfig)
    QML_SINGLETON
};

struct BaseDialogControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::BaseDialogController)
    QML_NAMED_ELEMENT(BaseDialogController)
    QML_UNCREATABLE("A dialog controller comes from the host.")
};

struct BasePopupControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::BasePopupController)
    QML_NAMED_ELEMENT(BasePopupController)
    QML_UNCREATABLE("A popup controller comes from the host.")
};

struct CommandContextDialogControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::CommandContextDialogController)
    QML_NAMED_ELEMENT(CommandContextDialogController)
    QML_UNCREATABLE("A dialog controller comes from the host.")
};

struct NameDialogControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::NameDialogController)
    QML_NAMED_ELEMENT(NameDialogController)
    QML_UNCREATABLE("A dialog controller comes from the host.")
};

struct AddRenameDialogControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::AddRenameDialogController)
    QML_NAMED_ELEMENT(AddRenameDialogController)
    QML_UNCREATABLE("A dialog controller comes from the host.")
};

struct TransientPopupCoreType
{
    Q_GADGET
    QML_FOREIGN(velm::TransientPopupCore)
    QML_NAMED_ELEMENT(TransientPopupCore)
};

struct UnitsInputControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::UnitsInputController)
    QML_NAMED_ELEMENT(UnitsInputController)
};

struct FixingIntValidatorType
{
    Q_GADGET
    QML_FOREIGN(velm::FixingIntValidator)
    QML_NAMED_ELEMENT(FixingIntValidator)
};

struct FixingDoubleValidatorType
{
    Q_GADGET
    QML_FOREIGN(velm::FixingDoubleValidator)
    QML_NAMED_ELEMENT(FixingDoubleValidator)
};

struct UIDevSettingsModelType
{
    Q_GADGET
    QML_FOREIGN(velm::UIDevSettingsModel)
    QML_NAMED_ELEMENT(UIDevSettingsModel)
};

struct ArrowHeadModelType
{
    Q_GADGET
    QML_FOREIGN(velm::ArrowHeadModel)
    QML_NAMED_ELEMENT(ArrowHeadModel)
    QML_UNCREATABLE("A combo's model comes from the host.")
};

struct ArrowHeadObjectType
{
    Q_GADGET
    QML_FOREIGN(velm::ArrowHeadObject)
    QML_NAMED_ELEMENT(ArrowHeadObject)
    QML_UNCREATABLE("A row comes from its model.")
};

struct ColorModelType
{
    Q_GADGET
    QML_FOREIGN(velm::ColorModel)
    QML_NAMED_ELEMENT(ColorModel)
    QML_UNCREATABLE("A combo's model comes from the host.")
};

struct ColorObjectType
{
    Q_GADGET
    QML_FOREIGN(velm::ColorObject)
    QML_NAMED_ELEMENT(ColorObject)
    QML_UNCREATABLE("A row comes from its model.")
};

struct LineTypeModelType
{
    Q_GADGET
    QML_FOREIGN(velm::LineTypeModel)
    QML_NAMED_ELEMENT(LineTypeModel)
    QML_UNCREATABLE("A combo's model comes from the host.")
};

struct LineTypeObjectType
{
    Q_GADGET
    QML_FOREIGN(velm::LineTypeObject)
    QML_NAMED_ELEMENT(LineTypeObject)
    QML_UNCREATABLE("A row comes from its model.")
};

struct LineWeightModelType
{
    Q_GADGET
    QML_FOREIGN(velm::LineWeightModel)
    QML_NAMED_ELEMENT(LineWeightModel)
    QML_UNCREATABLE("A combo's model comes from the host.")
};

struct LineWeightObjectType
{
    Q_GADGET
    QML_FOREIGN(velm::LineWeightObject)
    QML_NAMED_ELEMENT(LineWeightObject)
    QML_UNCREATABLE("A row comes from its model.")
};

struct AbstractFilterPropertiesModelType
{
    Q_GADGET
    QML_FOREIGN(velm::AbstractFilterPropertiesModel)
    QML_NAMED_ELEMENT(AbstractFilterPropertiesModel)
    QML_UNCREATABLE("The properties come from the host.")
};

struct ComponentUrlWithSettingsType
{
    Q_GADGET
    QML_FOREIGN(velm::ComponentUrlWithSettings)
    QML_VALUE_TYPE(componentUrlWithSettings)
};

struct FilterListModelType
{
    Q_GADGET
    QML_FOREIGN(velm::FilterListModel)
    QML_NAMED_ELEMENT(FilterListModel)
    QML_UNCREATABLE("The names come from a LoadFilterController.")
};

struct FilterManagerButtonsControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::FilterManagerButtonsController)
    QML_NAMED_ELEMENT(FilterManagerButtonsController)
};

struct FilterOperatorsModelType
{
    Q_GADGET
    QML_FOREIGN(velm::FilterOperatorsModel)
    QML_NAMED_ELEMENT(FilterOperatorsModel)
};

struct FilterPopupControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::FilterPopupController)
    QML_NAMED_ELEMENT(FilterPopupController)
};

struct FilterTagsConjunctionModelType
{
    Q_GADGET
    QML_FOREIGN(velm::FilterTagsConjunctionModel)
    QML_NAMED_ELEMENT(FilterTagsConjunctionModel)
    QML_UNCREATABLE("A conjunction comes from a FilterTagsModel.")
};

struct FilterTagsModelType
{
    Q_GADGET
    QML_FOREIGN(velm::FilterTagsModel)
    QML_NAMED_ELEMENT(FilterTagsModel)
    QML_UNCREATABLE("The filter comes from the host.")
};

struct LoadFilterControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::LoadFilterController)
    QML_NAMED_ELEMENT(LoadFilterController)
    QML_UNCREATABLE("It comes with a FilterManagerButtonsController.")
};

struct PinnedPropertiesModelType
{
    Q_GADGET
    QML_FOREIGN(velm::PinnedPropertiesModel)
    QML_NAMED_ELEMENT(PinnedPropertiesModel)
    QML_UNCREATABLE("The favourites come with a FilterPopupController.")
};

struct QtControllerWrapperType
{
    Q_GADGET
    QML_FOREIGN(velm::QtControllerWrapper)
    QML_NAMED_ELEMENT(QtControllerWrapper)
    QML_UNCREATABLE("The host wraps its controllers.")
};

struct QtWindowParentType
{
    Q_GADGET
    QML_FOREIGN(velm::QtWindowParent)
    QML_NAMED_ELEMENT(QtWindowParent)
    QML_UNCREATABLE("The host knows its windows.")
};

struct UrlAndControllerType
{
    Q_GADGET
    QML_FOREIGN(velm::UrlAndController)
    QML_VALUE_TYPE(urlAndController)
};

struct WebDocUtilsType
{
    Q_GADGET
    QML_FOREIGN(velm::WebDocUtils)
    QML_NAMED_ELEMENT(WebDocUtils)
};
} // namespace velmqml
