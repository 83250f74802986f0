#include "velm/filter/filterpopupcontroller.h"

#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/filterpropertiestreemodel.h"
#include "velm/filter/pinnedpropertiesmodel.h"
#include "velm/filter/searchstringfilter.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QPointer>

namespace velm {
struct FilterPopupController::Pimpl
{
    QPointer<const AbstractFilterPropertiesModel> propertiesModel;
    std::unique_ptr<FilterPropertiesTreeModel> treeModel;
    SortFilterSelectModel sortFilterSelectModel;
    SearchStringFilter searchFilter;
    PinnedPropertiesModel pinnedProperties;
};

FilterPopupController::FilterPopupController(QObject* parent) : QObject(parent), m_pimpl(std::make_unique<Pimpl>())
{
    m_pimpl->sortFilterSelectModel.initSortFilterSelectModel();
    m_pimpl->sortFilterSelectModel.setFilter(&m_pimpl->searchFilter);
}

FilterPopupController::~FilterPopupController() = default;

const QAbstractItemModel* FilterPopupController::getPropertiesModel() const
{
    return m_pimpl->propertiesModel;
}

void FilterPopupController::setPropertiesModel(const QAbstractItemModel* model)
{
    const auto* cast = dynamic_cast<const AbstractFilterPropertiesModel*>(model);
    // The tree of a model that died since then still stands, without the model.
    if (m_pimpl->propertiesModel == cast && (cast || !m_pimpl->treeModel))
        return;
    m_pimpl->propertiesModel = cast;
    m_pimpl->treeModel = cast ? std::make_unique<FilterPropertiesTreeModel>(*cast) : nullptr;
    m_pimpl->sortFilterSelectModel.setSourceModel(m_pimpl->treeModel.get());
    if (cast)
        m_pimpl->pinnedProperties.setProperties(*cast);
    Q_EMIT propertiesModelChanged();
    Q_EMIT m_pimpl->sortFilterSelectModel.filterChanged();
}

const QObject* FilterPopupController::getPropertiesTreeModel() const
{
    return m_pimpl->treeModel.get();
}

QString FilterPopupController::getSearchString() const
{
    return m_pimpl->searchFilter.searchString();
}

void FilterPopupController::setSearchString(const QString& text)
{
    m_pimpl->searchFilter.setSearchString(text);
}

const QSortFilterProxyModel* FilterPopupController::getSortFilterSelectModel() const
{
    return &m_pimpl->sortFilterSelectModel;
}

QAbstractItemModel* FilterPopupController::getPinnedPropertiesModel() const
{
    return &m_pimpl->pinnedProperties;
}
} // namespace velm
