#include "support/fakehost.h"

#include "velm/bridge/conversions.h"
#include "velm/dialogs/basedialogcontroller.h"

#include <QDebug>

#include <utility>

namespace velmtest {
FakeDialog::FakeDialog(velm::BaseDialogController& controller, std::vector<DialogStep> steps, QStringList& log)
    : m_controller(controller), m_steps(std::move(steps)), m_log(log)
{}

FakeDialog::~FakeDialog()
{
    // The controller must still live: asking it is what shows that it does.
    m_log += m_controller.parentDialog() == nullptr ? "destroyed" : "destroyed with a parent dialog";
}

void FakeDialog::show()
{
    m_log += "shown";
}

int FakeDialog::showModal()
{
    for (const DialogStep& step : m_steps) {
        if (step.action)
            step.action(m_controller);
        const bool mayEnd = m_controller.beforeEndModal(step.code);
        m_log += QString("%1 %2").arg(mayEnd ? "ended with" : "stayed open at").arg(step.code);
        if (mayEnd)
            return step.code;
    }
    qCritical("The dialog is still open at the end of its script.");
    return 0;
}

std::unique_ptr<velm::IHostDialog> FakeGuiController::createDialog(const QUrl& page,
                                                                   velm::BaseDialogController* controller,
                                                                   wxWindow* parent, const velm::DialogOptions& options,
                                                                   void* context)
{
    log += QString("createDialog %1%2%3%4")
               .arg(page.toString(), parent ? " parent" : "", context ? " context" : "",
                    options.modal ? "" : " not modal");
    if (dialogs.empty())
        return nullptr;
    auto dialog = std::make_unique<FakeDialog>(*controller, std::move(dialogs.front()), log);
    dialogs.pop_front();
    return dialog;
}

void FakeGuiController::hostOpenUrl(QUrl url)
{
    log += "openUrl " + url.toString();
}

void FakeGuiController::addContextDialog(velm::IHostDialog*)
{
    log += "addContextDialog";
}

void FakeGuiController::removeContextDialog(velm::IHostDialog*)
{
    log += "removeContextDialog";
}

bool FakeGuiController::shouldInitColor(const OdCmColor& color, int flags)
{
    return m_colors->shouldInitColor(color, flags);
}

OdArray<int> FakeGuiController::initColorIndices(int flags)
{
    return m_colors->initColorIndices(flags);
}

std::optional<int> FakeGuiController::tryAddColor(const OdCmColor& color, int flags)
{
    return m_colors->tryAddColor(color, flags);
}

OdCmColor& FakeGuiController::getArrayColor(int index, int flags)
{
    return m_colors->getArrayColor(index, flags);
}

velm::ColorDescription FakeGuiController::describeColor(const OdCmColor& color, wxColour byLayerColor,
                                                        bool layerOverride, int flags)
{
    return describe ? describe(color, byLayerColor, layerOverride, flags)
                    : m_colors->describeColor(color, byLayerColor, layerOverride, flags);
}

int FakeGuiController::colorComboFlagsToDialog(int comboFlags, bool varies)
{
    return m_colors->colorComboFlagsToDialog(comboFlags, varies);
}

OdString FakeGuiController::linetypeLocalName(const OdString& storedName) const
{
    return localName ? localName(storedName) : storedName;
}

bool FakeGuiController::loadLineTypes(OdDbDatabase* database, bool noSecondOption, OdDbObjectId& id, bool noFirstOption,
                                      velm::LoadedLineTypes& loaded)
{
    return lineTypes && lineTypes(database, noSecondOption, id, noFirstOption, loaded);
}

bool FakeGuiController::drawLineTypeBitmap(int width, int height, wxBitmap& bitmap, OdDbObjectId lineType,
                                           OdDbObjectId second, const wxColour& background) const
{
    return drawLineType && drawLineType(width, height, bitmap, lineType, second, background);
}

int FakeGuiController::lineWeightCount() const
{
    return lineWeights ? static_cast<int>(lineWeights().size()) : 0;
}

int FakeGuiController::lineWeightAt(int index) const
{
    return lineWeights().at(static_cast<std::size_t>(index)).first;
}

OdString FakeGuiController::lineWeightName(int lineWeight) const
{
    if (lineWeights)
        for (const auto& [weight, name] : lineWeights())
            if (weight == lineWeight)
                return name;
    return {};
}

std::pair<int, bool> FakeDialogFactory::message(OdString caption, OdString text, OdString extraText,
                                                velm::EMessageStyle style,
                                                const std::vector<velm::MessageButtonInfo>& buttons, wxWindow* parent)
{
    QStringList labels;
    for (const velm::MessageButtonInfo& button : buttons)
        labels += QString("%1 %2").arg(velm::toQt(button.text)).arg(button.id);
    const QString icon = style == velm::EMessageStyle::Information ? QString("info")
                         : style == velm::EMessageStyle::Warning   ? QString("warning")
                         : style == velm::EMessageStyle::Error     ? QString("error")
                                                                   : QString::number(static_cast<int>(style));
    log +=
        QStringList{icon, velm::toQt(caption), velm::toQt(text), velm::toQt(extraText), labels.join(", ")}.join(" | ") +
        (parent ? " | parent" : "");
    if (answers.empty()) {
        qCritical() << "No answer left for the message" << log.last();
        return {wxCANCEL, false};
    }
    const std::pair<int, bool> answer = answers.front();
    answers.pop_front();
    return answer;
}

std::optional<OdCmColor> FakeDialogFactory::colorDialog(wxWindow*, const OdCmColor* initial, unsigned flags)
{
    log += QString("color %1 flags %2").arg(initial ? QString::number(initial->color(), 16) : "-").arg(flags);
    if (colors.empty()) {
        qCritical() << "No answer left for the colour dialog";
        return {};
    }
    const std::optional<OdCmColor> answer = colors.front();
    colors.pop_front();
    return answer;
}

bool FakeDialogFactory::loadLineTypesDialog(wxWindow*, OdDbDatabase*, OdArray<OdString>& loaded, const wxString& file,
                                            const OdString& name)
{
    log += QString("load linetypes %1 %2").arg(velm::toQt(file), velm::toQt(name));
    return loadLineTypes && loadLineTypes(loaded);
}

bool FakeDialogFactory::quickCalculator(wxWindow* parent, OdDbEvalVariantPtr& value, bool modal)
{
    log +=
        QString("calculator %1%2%3")
            .arg(value ? QString::number(value->getAsDouble()) : "-", modal ? " modal" : "", parent ? " parent" : "");
    return calculate && calculate(value);
}

void RecordingReactor::documentDestroyed(const OdString& fileName)
{
    log += "destroyed " + velm::toQt(fileName);
}

void RecordingReactor::note(const char* what, const OdApDocument* document)
{
    log += QString("%1 %2").arg(what, document ? velm::toQt(document->fileName()) : "-");
}

wxString FakeUnitFormatter::formatLinear()
{
    log += "formatLinear";
    return text;
}

wxString FakeUnitFormatter::formatAngular(const void* reserved, std::uint16_t flags)
{
    log += QString("formatAngular %1 %2").arg(reserved ? "?" : "null").arg(flags, 0, 16);
    return text;
}

bool FakeUnitFormatter::parseLinear(double* result, const wxString& input)
{
    log += QString("parseLinear %1 '%2'").arg(*result).arg(velm::toQt(input));
    *result = parsed.value_or(*result);
    return success;
}

bool FakeUnitFormatter::parseAngular(double* result, const wxString& input, const void* reserved, std::uint16_t flags)
{
    log += QString("parseAngular %1 '%2' %3 %4")
               .arg(*result)
               .arg(velm::toQt(input), reserved ? "?" : "null")
               .arg(flags, 0, 16);
    *result = parsed.value_or(*result);
    return success;
}

std::function<velm::IUnitFormatter*(double)> FakeUnitFormatter::getter()
{
    return [this](double value) {
        log += QString("got for %1").arg(value);
        return this;
    };
}
} // namespace velmtest
