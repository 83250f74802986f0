#include "filter/filtercontroller.h"

#include "drawing/selection.h"
#include "filter/entityfilterfactories.h"
#include "velm/filter/filtertagsconjunctionmodel.h"

#include <algorithm>
#include <utility>

namespace workbench {
namespace {
constexpr int pauseMs = 250;

std::shared_ptr<EntityFilterProperties> makeProperties(OdApDocManager& documents)
{
    return std::dynamic_pointer_cast<EntityFilterProperties>(
        velm::IEntityFilterPropertiesModel::create(std::make_shared<EntityFilterFactories>(documents)));
}
} // namespace

FilterController::FilterController(OdApDocManager& documents, Selection& selection)
    : m_documents(documents), m_selection(selection), m_properties(makeProperties(documents)), m_matcher(*m_properties),
      m_tags(*m_properties, nullptr)
{
    m_properties->setSelection(&m_selection);
    m_filterChanged.setSingleShot(true);
    connect(&m_tags, &velm::FilterTagsModel::filtersChanged, &m_filterChanged, qOverload<>(&QTimer::start));
    // The tags tell of most changes, but neither of all edits of a copied conjunction nor of all that is cleared.
    connect(&m_tags, &QAbstractItemModel::rowsRemoved, &m_filterChanged, qOverload<>(&QTimer::start));
    connect(&m_tags, &QAbstractItemModel::rowsInserted, this, &FilterController::watchConjunctions);
    connect(&m_tags, &QAbstractItemModel::modelReset, this, &FilterController::watchConjunctions);
    watchConjunctions();
    connect(&m_filterChanged, &QTimer::timeout, this, &FilterController::applyFilter);
    m_changesPaused.setSingleShot(true);
    m_changesPaused.setInterval(pauseMs);
    connect(&m_changesPaused, &QTimer::timeout, this, &FilterController::selectMatches);
    connect(&m_selection, &Selection::changed, &m_changesPaused, &QTimer::stop);
    m_documents.addReactor(this);
    documentBecameCurrent(m_documents.curDocument());
}

FilterController::~FilterController()
{
    m_documents.removeReactor(this);
}

void FilterController::documentBecameCurrent(OdApDocument*)
{
    // What was found in another drawing is nobody's selection.
    m_filterChanged.stop();
    m_changesPaused.stop();
    refresh();
}

void FilterController::watchConjunctions()
{
    for (int row = 0; row < m_tags.rowCount(); ++row) {
        const auto* tags = m_tags.index(row, 0)
                               .data(velm::FilterTagsModel::ConjunctionModelRole)
                               .value<velm::FilterTagsConjunctionModel*>();
        const auto watch = [this, tags](auto signal) {
            connect(tags, signal, &m_filterChanged, qOverload<>(&QTimer::start), Qt::UniqueConnection);
        };
        watch(&QAbstractItemModel::dataChanged);
        watch(&QAbstractItemModel::rowsInserted);
        watch(&QAbstractItemModel::rowsRemoved);
        watch(&QAbstractItemModel::modelReset);
    }
}

void FilterController::refresh()
{
    m_areRecordsStale = true;
    m_properties->refresh();
    findMatches();
}

bool FilterController::hasConditions() const
{
    const velm::FilterData filter = m_tags.getFilter();
    return std::ranges::any_of(filter, [](const auto& conjunction) { return !conjunction.empty(); });
}

void FilterController::findMatches()
{
    m_matches.clear();
    // The records of a large drawing are read when somebody asks for them.
    if (hasConditions()) {
        if (std::exchange(m_areRecordsStale, false)) {
            OdApDocument* document = m_documents.curDocument();
            m_matcher.setDatabase(document ? document->database() : nullptr);
        }
        m_matches = m_matcher.matches(m_tags.getFilter());
    }
    Q_EMIT matchesChanged();
}

void FilterController::applyFilter()
{
    const std::vector<OdDbObjectId> former = m_matches;
    const bool isOurSelection = m_changesPaused.isActive() || m_selection.entities() == former;
    findMatches();
    // Nothing that changes nothing takes away what was picked meanwhile, and a filter that was emptied only what it had
    // selected itself.
    if (!isOurSelection && (m_matches == former || !hasConditions()))
        return;
    Q_EMIT matchesFound();
    m_changesPaused.start();
}

void FilterController::selectMatches()
{
    m_selection.set(m_matches, m_matches.empty() ? OdDbObjectId() : m_matches.front());
}

QString FilterController::status() const
{
    if (m_documents.curDocument() == nullptr || !hasConditions())
        return {};
    return m_matches.size() == 1 ? tr("1 entity matches") : tr("%1 entities match").arg(m_matches.size());
}
} // namespace workbench
