#include "velm/filter/loadfiltercontroller.h"

#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/strings.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/dialogs/namedialogcontroller.h"
#include "velm/filter/filterlistmodel.h"
#include "velm/filter/filtermanagerbuttonscontroller.h"
#include "velm/filter/filternames.h"
#include "velm/models/menubuilder.h"

#include <QPointer>

#include <wx/defs.h>

namespace velm {
struct LoadFilterController::Pimpl
{
    FilterManagerButtonsController* buttons; // not owned
    std::unique_ptr<FilterListModel> filterListModel;
    MenuModel menuModel;
};

LoadFilterController::LoadFilterController(FilterManagerButtonsController& buttons)
    : m_pimpl(new Pimpl{&buttons, std::make_unique<FilterListModel>(), {}})
{}

LoadFilterController::~LoadFilterController() = default;

QAbstractListModel* LoadFilterController::getFilterListModel() const
{
    return m_pimpl->filterListModel.get();
}

QAbstractItemModel* LoadFilterController::getMenuModel() const
{
    return &m_pimpl->menuModel;
}

void LoadFilterController::refreshFilterList()
{
    m_pimpl->filterListModel->setNames(m_pimpl->buttons->getFilterList());
}

void LoadFilterController::refreshMenuModel(QString filterName)
{
    const auto item = [](const QString& text, const QString& icon, const std::function<void()>& command) {
        return MenuData(text, command, MenuData::getDefaultItemType(), {}, icon);
    };
    MenuBuilder(&m_pimpl->menuModel)
        .addItem(item(QObject::tr("Rename"), "edit.svg", [this, filterName] { renameFilter(filterName); }))
        .addItem(item(QObject::tr("Remove"), "remove.svg", [this, filterName] { removeFilter(filterName); }))
        .addItem(item(QObject::tr("Duplicate"), "copy.svg", [this, filterName] {
            m_pimpl->buttons->duplicate(filterName);
            refreshFilterList();
        }));
}

void LoadFilterController::selectFilter(QString filterName)
{
    m_pimpl->buttons->open(filterName);
}

void LoadFilterController::renameFilter(const QString& oldName)
{
    // The old name is among them, so keeping it, or changing its case only, counts as a duplicate. This must stay.
    const QPointer self(this);
    const QStringList names = m_pimpl->buttons->getFilterList();
    const std::optional<QString> newName = NameDialogController::launchDialog(
        QStringLiteral("Rename filter"), tr("Enter a unique filter name:"), tr("Rename"), oldName,
        [&names](const QString& name) { return checkFilterNameIsValid(name, false, names); });
    // The page, which may own the buttons, may be gone.
    if (!newName || !self)
        return;
    m_pimpl->buttons->rename(oldName, *newName);
    Q_EMIT openPopup();
}

void LoadFilterController::removeFilter(const QString& filterName)
{
    IDialogFactory* dialogs = dlgFactory();
    if (dialogs == nullptr)
        return;
    const QPointer self(this);
    const wxString text = wxString::Format(hostTranslation("Are you sure you want to delete \"%ls\"?"),
                                           filterName.toStdWString().c_str());
    if (dialogs->showMessage(OdString(hostTranslation("Delete Filter").wc_str()), OdString(text.wc_str()),
                             EMessageStyle::Information, MessageButtonStyle::YesNo, nullptr) != wxYES ||
        !self)
        return;
    m_pimpl->buttons->remove(filterName);
    refreshFilterList();
}
} // namespace velm
