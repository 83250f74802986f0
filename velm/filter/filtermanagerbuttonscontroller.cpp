#include "velm/filter/filtermanagerbuttonscontroller.h"

#include "ut/config.h"
#include "ut/names.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/strings.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/dialogs/namedialogcontroller.h"
#include "velm/filter/filternames.h"
#include "velm/filter/filtertagsmodel.h"
#include "velm/filter/ientityfilterpropertiesmodel.h"
#include "velm/filter/ifiltermanagerfileio.h"
#include "velm/filter/loadfiltercontroller.h"

#include <QPointer>

#include <wx/defs.h>

namespace velm {
namespace {
constexpr int loadAnyway = 4;

/// Whether to load a filter without the properties that aren't there.
bool isLoadedWithout(const QStringList& missing)
{
    IDialogFactory* dialogs = dlgFactory();
    if (dialogs == nullptr)
        return false;
    static const std::vector<MessageButtonInfo> buttons = {
        {OdString(hostTranslation("Load without missing properties").wc_str()), loadAnyway},
        {OdString(hostTranslation("Cancel").wc_str()), wxCANCEL},
    };
    wxString text = hostTranslation("This filter uses properties that are not available here:");
    text += "\n\n";
    for (const QString& name : missing)
        text += "- " + wxFromQt(name) + "\n";
    text += "\n" + hostTranslation("Without them the filter may find other entities.");
    return dialogs->showMessage(OdString(hostTranslation("Property Not Available").wc_str()), OdString(text.wc_str()),
                                EMessageStyle::Warning, buttons, nullptr) == loadAnyway;
}

void tellRequiredVersion(const OdString& version)
{
    IDialogFactory* dialogs = dlgFactory();
    if (dialogs == nullptr)
        return;
    const wxString text = wxString::Format(hostTranslation("The filter requires %ls %ls or higher to open."),
                                           ut::Config::regProduct().wide().c_str(), version.wide().c_str());
    dialogs->showErrorMessage(OdString(hostTranslation("Filter Version Error").wc_str()), OdString(text.wc_str()),
                              nullptr, MessageButtonStyle::OK);
}
} // namespace

struct FilterManagerButtonsController::Pimpl
{
    explicit Pimpl(FilterManagerButtonsController& buttons) : loadFilterController(buttons) {}

    QPointer<IEntityFilterPropertiesModel> properties;
    std::unique_ptr<IFilterManagerFileIO> fileIO;
    std::shared_ptr<void> filtersChangedSubscription;
    QPointer<FilterTagsModel> tagsModel;
    QString currentName;
    LoadFilterController loadFilterController;
};

FilterManagerButtonsController::FilterManagerButtonsController() : m_pimpl(std::make_unique<Pimpl>(*this))
{}

FilterManagerButtonsController::~FilterManagerButtonsController() = default;

QObject* FilterManagerButtonsController::getLoadFilterController() const
{
    return &m_pimpl->loadFilterController;
}

bool FilterManagerButtonsController::getHasSavedFilters() const
{
    return !getFilterList().isEmpty();
}

void FilterManagerButtonsController::open(const QString& filterName)
{
    if (!isReady())
        return;
    QStringList missing;
    OdString requiredVersion;
    const auto filter = m_pimpl->fileIO->load(filterName, *m_pimpl->properties, missing, requiredVersion);
    if (!filter) {
        if (!requiredVersion.isEmpty())
            tellRequiredVersion(requiredVersion);
        return;
    }
    const QPointer self(this);
    if (!missing.isEmpty() && !isLoadedWithout(missing))
        return;
    // The box may have outlived the page, and what the page owns.
    if (!self)
        return;
    if (m_pimpl->tagsModel)
        m_pimpl->tagsModel->setFilter(*filter);
    m_pimpl->currentName = filterName;
}

void FilterManagerButtonsController::save(const QString& filterName)
{
    if (!isReady())
        return;
    m_pimpl->fileIO->save(m_pimpl->tagsModel->getFilter(), *m_pimpl->properties, filterName);
    m_pimpl->currentName = filterName;
}

void FilterManagerButtonsController::rename(const QString& oldName, const QString& newName)
{
    if (m_pimpl->fileIO)
        m_pimpl->fileIO->rename(oldName, newName);
}

void FilterManagerButtonsController::duplicate(const QString& filterName)
{
    if (m_pimpl->properties == nullptr || m_pimpl->fileIO == nullptr)
        return;
    const QStringList names = getFilterList();
    const auto isUnique = [&names](const OdString& candidate) { return !names.contains(toQt(candidate)); };
    m_pimpl->fileIO->duplicate(filterName, toQt(ut::makeUniqueName(odFromQt(filterName), isUnique, true, L'_')));
}

void FilterManagerButtonsController::remove(const QString& filterName)
{
    if (m_pimpl->fileIO)
        m_pimpl->fileIO->remove(filterName);
}

QStringList FilterManagerButtonsController::getFilterList() const
{
    return m_pimpl->fileIO ? m_pimpl->fileIO->getFilterList() : QStringList();
}

void FilterManagerButtonsController::setPropertiesModel(QAbstractItemModel* pModel)
{
    m_pimpl->properties = dynamic_cast<IEntityFilterPropertiesModel*>(pModel);
    const oc::PropertyFilterFactoriesManager* manager =
        m_pimpl->properties ? m_pimpl->properties->getPropertyFilterFactoriesManager() : nullptr;
    // A copy, since the function may put itself out.
    const IFilterManagerFileIO::CreateFileIOFunc createFileIO = IFilterManagerFileIO::createFileIOFunc();
    const bool isNewStore = manager && createFileIO;
    if (isNewStore) {
        std::unique_ptr<IFilterManagerFileIO> store = createFileIO(*manager);
        // The handle is the old store's own: it goes first.
        m_pimpl->filtersChangedSubscription.reset();
        m_pimpl->fileIO = std::move(store);
    }
    if (m_pimpl->fileIO)
        m_pimpl->filtersChangedSubscription =
            m_pimpl->fileIO->addFiltersChangedListener([this] { Q_EMIT numFiltersChanged(); });
    if (isNewStore)
        Q_EMIT numFiltersChanged();
}

void FilterManagerButtonsController::setTagsModel(QAbstractItemModel* pModel)
{
    m_pimpl->tagsModel = dynamic_cast<FilterTagsModel*>(pModel);
}

void FilterManagerButtonsController::openSaveDialog()
{
    if (!isReady())
        return;
    const QPointer self(this);
    const QStringList names = getFilterList();
    const std::optional<QString> name = NameDialogController::launchDialog(
        QStringLiteral("Save filter"), tr("Enter a filter name:"), tr("Save"), m_pimpl->currentName,
        [&names](const QString& candidate) { return checkFilterNameIsValid(candidate, true, names); });
    if (name && self)
        save(*name);
}

bool FilterManagerButtonsController::isReady() const
{
    return m_pimpl->tagsModel && m_pimpl->properties && m_pimpl->fileIO;
}
} // namespace velm
