#include "velm/filter/filtertagsmodel.h"

#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/filtertagsconjunctionmodel.h"

#include <QJSEngine>

#include <utility>

namespace velm {
struct FilterTagsModel::Pimpl
{
    const AbstractFilterPropertiesModel& properties;
    const FilterTagFormatter* formatter; // not owned
    std::vector<std::unique_ptr<FilterTagsConjunctionModel>> conjunctions;
};

FilterTagsModel::FilterTagsModel(const AbstractFilterPropertiesModel& properties, const FilterTagFormatter* formatter)
    : m_pimpl(new Pimpl{properties, formatter, {}})
{
    addConjunction();
}

FilterTagsModel::~FilterTagsModel() = default;

int FilterTagsModel::getDefaultConjunctionIndex()
{
    return 0;
}

std::vector<std::vector<FilterTagData>> FilterTagsModel::getFilter() const
{
    FilterData filter;
    filter.reserve(m_pimpl->conjunctions.size());
    for (const auto& conjunction : m_pimpl->conjunctions)
        filter.push_back(conjunction->getTags());
    return filter;
}

void FilterTagsModel::setFilter(const std::vector<std::vector<FilterTagData>>& filter)
{
    const FilterData current = getFilter();
    if (filter == current || (filter.empty() && current == FilterData(1)))
        return;
    std::vector<std::unique_ptr<FilterTagsConjunctionModel>> conjunctions;
    for (const std::vector<FilterTagData>& tags : filter) {
        auto conjunction = makeConjunction();
        for (const FilterTagData& tag : tags) {
            if (tag.propertyIndex < -1 || tag.propertyIndex >= m_pimpl->properties.getNrProperties())
                return;
            conjunction->append(tag);
        }
        connectConjunction(*conjunction);
        conjunctions.push_back(std::move(conjunction));
    }
    if (conjunctions.empty()) {
        conjunctions.push_back(makeConjunction());
        connectConjunction(*conjunctions.back());
    }
    beginResetModel();
    // The former conjunctions live until the page has let go of them.
    m_pimpl->conjunctions.swap(conjunctions);
    endResetModel();
    Q_EMIT filtersChanged();
}

int FilterTagsModel::rowCount(const QModelIndex& /*parent*/) const
{
    return static_cast<int>(m_pimpl->conjunctions.size());
}

QVariant FilterTagsModel::data(const QModelIndex& index, int role) const
{
    return role == ConjunctionModelRole && isConjunction(index.row()) ? QVariant::fromValue(&conjunction(index.row()))
                                                                      : QVariant();
}

QHash<int, QByteArray> FilterTagsModel::roleNames() const
{
    return {{ConjunctionModelRole, "conjunctionModel"}};
}

void FilterTagsModel::addConjunction()
{
    const int row = rowCount();
    beginInsertRows(QModelIndex(), row, row);
    m_pimpl->conjunctions.push_back(makeConjunction());
    connectConjunction(*m_pimpl->conjunctions.back());
    endInsertRows();
    Q_EMIT filtersChanged();
}

void FilterTagsModel::removeConjunction(int conjunctionIndex)
{
    if (!isConjunction(conjunctionIndex))
        return;
    if (rowCount() == 1) {
        if (conjunction(0).clear())
            Q_EMIT filtersChanged();
        return;
    }
    beginRemoveRows(QModelIndex(), conjunctionIndex, conjunctionIndex);
    m_pimpl->conjunctions.erase(m_pimpl->conjunctions.begin() + conjunctionIndex);
    endRemoveRows();
    Q_EMIT filtersChanged();
}

void FilterTagsModel::duplicateConjunction(int conjunctionIndex)
{
    if (!isConjunction(conjunctionIndex))
        return;
    const int row = conjunctionIndex + 1;
    beginInsertRows(QModelIndex(), row, row);
    m_pimpl->conjunctions.insert(m_pimpl->conjunctions.begin() + row,
                                 makeConjunction(conjunction(conjunctionIndex).getTags()));
    connectConjunction(*m_pimpl->conjunctions.back());
    endInsertRows();
    Q_EMIT filtersChanged();
}

void FilterTagsModel::addTag(int conjunctionIndex, int propertyIndex, int operation, QVariant value)
{
    if (isConjunction(conjunctionIndex))
        conjunction(conjunctionIndex).addTag(propertyIndex, operation, std::move(value));
}

void FilterTagsModel::editTag(int conjunctionIndex, int tagIndex, int propertyIndex, int operation, QVariant value)
{
    if (isConjunction(conjunctionIndex))
        conjunction(conjunctionIndex).editTag(tagIndex, propertyIndex, operation, std::move(value));
}

void FilterTagsModel::removeTag(int conjunctionIndex, int tagIndex)
{
    if (isConjunction(conjunctionIndex))
        conjunction(conjunctionIndex).removeTag(tagIndex);
}

void FilterTagsModel::removeTags(int conjunctionIndex)
{
    if (isConjunction(conjunctionIndex))
        conjunction(conjunctionIndex).clear();
}

void FilterTagsModel::clear()
{
    if (rowCount() > 1) {
        beginRemoveRows(QModelIndex(), 1, rowCount() - 1);
        m_pimpl->conjunctions.erase(m_pimpl->conjunctions.begin() + 1, m_pimpl->conjunctions.end());
        endRemoveRows();
    }
    conjunction(0).clear();
}

QVariantMap FilterTagsModel::get(int conjunctionIndex, int tagIndex)
{
    QVariantMap map;
    if (!isConjunction(conjunctionIndex))
        return map;
    const FilterTagsConjunctionModel& tags = conjunction(conjunctionIndex);
    const QHash<int, QByteArray> names = tags.roleNames();
    for (auto entry = names.begin(); entry != names.end(); ++entry)
        if (entry.key() != FilterTagsConjunctionModel::DataRole)
            map[entry.value()] = tags.data(tags.index(tagIndex, 0), entry.key());
    return map;
}

bool FilterTagsModel::isConjunction(int index) const
{
    return index >= 0 && index < rowCount();
}

FilterTagsConjunctionModel& FilterTagsModel::conjunction(int index) const
{
    return *m_pimpl->conjunctions[static_cast<std::size_t>(index)];
}

std::unique_ptr<FilterTagsConjunctionModel> FilterTagsModel::makeConjunction(std::vector<FilterTagData> tags) const
{
    auto conjunction =
        std::make_unique<FilterTagsConjunctionModel>(m_pimpl->properties, m_pimpl->formatter, std::move(tags));
    QJSEngine::setObjectOwnership(conjunction.get(), QJSEngine::CppOwnership);
    return conjunction;
}

void FilterTagsModel::connectConjunction(const FilterTagsConjunctionModel& conjunction)
{
    connect(&conjunction, &QAbstractItemModel::dataChanged, this, &FilterTagsModel::filtersChanged);
    connect(&conjunction, &QAbstractItemModel::rowsInserted, this, &FilterTagsModel::filtersChanged);
    connect(&conjunction, &QAbstractItemModel::rowsRemoved, this, &FilterTagsModel::filtersChanged);
    connect(&conjunction, &QAbstractItemModel::rowsMoved, this, &FilterTagsModel::filtersChanged);
    connect(&conjunction, &QAbstractItemModel::modelReset, this, &FilterTagsModel::filtersChanged);
}
} // namespace velm
