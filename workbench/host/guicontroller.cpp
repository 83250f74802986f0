#include "host/guicontroller.h"

#include "host/colordescription.h"
#include "host/pagedialog.h"
#include "linetypes/linetypelist.h"
#include "linetypes/linetypepicture.h"
#include "od/oddbdatabase.h"
#include "panels/propertytexts.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/commandcontextdialogcontroller.h"

#include <QObject>

#include <wx/utils.h>

#include <algorithm>

namespace workbench {
GuiController::GuiController(PageGroup& pages) : m_pages(pages), m_colors(velm::createEmptyGuiController())
{}

GuiController::~GuiController() = default;

std::unique_ptr<velm::IHostDialog> GuiController::createDialog(const QUrl& page, velm::BaseDialogController* controller,
                                                               wxWindow* parent, const velm::DialogOptions& options,
                                                               void*)
{
    if (auto* context = dynamic_cast<velm::CommandContextDialogController*>(controller); context && m_contextArea)
        return m_contextArea->createPanel(page, *context);
    return std::make_unique<HostDialog>(m_pages, page, controller, parent, options);
}

void GuiController::hostOpenUrl(QUrl url)
{
    wxLaunchDefaultBrowser(velm::wxFromQt(url.toString()));
}

void GuiController::addContextDialog(velm::IHostDialog* dialog)
{
    m_contextDialogs.push_back(dialog);
    if (m_contextArea)
        m_contextArea->showArea(true);
}

void GuiController::removeContextDialog(velm::IHostDialog* dialog)
{
    std::erase(m_contextDialogs, dialog);
    if (m_contextArea && m_contextDialogs.empty())
        m_contextArea->showArea(false);
}

std::shared_ptr<void> GuiController::hostCreateShared1(const QUrl&, std::unique_ptr<QObject>)
{
    return {};
}

bool GuiController::shouldInitColor(const OdCmColor& color, int flags)
{
    return m_colors->shouldInitColor(color, flags);
}

OdArray<int> GuiController::initColorIndices(int flags)
{
    return m_colors->initColorIndices(flags);
}

std::optional<int> GuiController::tryAddColor(const OdCmColor& color, int flags)
{
    return m_colors->tryAddColor(color, flags);
}

OdCmColor& GuiController::getArrayColor(int index, int flags)
{
    return m_colors->getArrayColor(index, flags);
}

velm::ColorDescription GuiController::describeColor(const OdCmColor& color, wxColour byLayerColor, bool layerOverride,
                                                    int flags)
{
    return workbench::describeColor(color, byLayerColor, layerOverride, flags);
}

int GuiController::colorComboFlagsToDialog(int comboFlags, bool varies)
{
    return m_colors->colorComboFlagsToDialog(comboFlags, varies);
}

OdString GuiController::linetypeLocalName(const OdString& storedName) const
{
    return lineTypeLocalName(storedName);
}

bool GuiController::loadLineTypes(OdDbDatabase* database, bool noSecondOption, OdDbObjectId& id, bool noFirstOption,
                                  velm::LoadedLineTypes& lineTypes)
{
    if (!database)
        return false;
    lineTypes.ids = listLineTypes(*database, {.withByLayer = noFirstOption, .usedOnly = !noSecondOption, .wanted = id});
    return true;
}

bool GuiController::drawLineTypeBitmap(int width, int height, wxBitmap& bitmap, OdDbObjectId lineType, OdDbObjectId,
                                       const wxColour& background) const
{
    const auto* record = lineType.open<OdDbLinetypeTableRecord>();
    // In this host's themes the suggested ground is the grey that is strongest on the panels: the line is drawn with
    // it, and the combo's own ground is left to be seen.
    const wxBitmap picture = record ? lineTypePicture(record->dashes(), {width, height}, background) : wxBitmap();
    if (picture.IsOk())
        bitmap = picture;
    return picture.IsOk();
}

int GuiController::lineWeightCount() const
{
    return static_cast<int>(lineWeights().size());
}

int GuiController::lineWeightAt(int index) const
{
    return index >= 0 && index < lineWeightCount() ? lineWeights()[static_cast<std::size_t>(index)] : 0;
}

OdString GuiController::lineWeightName(int lineWeight) const
{
    return velm::odFromQt(lineWeightText(lineWeight));
}
} // namespace workbench
