#include "panels/structurecontroller.h"

#include "drawing/selection.h"

#include <optional>

namespace workbench {
namespace {
using Kind = StructureRow::Kind;
} // namespace

StructureController::StructureController(OdApDocManager& documents, Selection& selection)
    : m_documents(documents), m_selection(selection), m_actions(selection)
{
    fillMenu();
    connect(&m_selection, &Selection::changed, this, &StructureController::followSelection);
    m_documents.addReactor(this);
    documentBecameCurrent(m_documents.curDocument());
}

StructureController::~StructureController()
{
    m_documents.removeReactor(this);
}

void StructureController::documentBecameCurrent(OdApDocument*)
{
    rebuild();
    refreshMenu();
    Q_EMIT drawingChanged();
}

void StructureController::refresh()
{
    rebuild();
    followSelection();
}

void StructureController::keepCurrent(const std::function<void()>& change)
{
    std::optional<StructureRow> former;
    if (const StructureRow* row = m_tree.getData(m_current))
        former = *row;
    // A view that loses its current row in a reset tells that as if the user had left it.
    m_isRebuilding = true;
    change();
    m_isRebuilding = false;
    moveTo(former ? m_tree.find(*former) : QModelIndex());
}

void StructureController::rebuild()
{
    keepCurrent([this] {
        OdApDocument* document = m_documents.curDocument();
        m_tree.build(document ? document->database() : nullptr);
    });
}

void StructureController::collapseAll()
{
    // The current row would be out of sight.
    while (m_current.parent().isValid())
        m_current = m_current.parent();
    keepCurrent([this] { m_tree.expandAll(false); });
}

void StructureController::moveTo(const QModelIndex& index)
{
    m_current = index;
    Q_EMIT currentIndexChanged();
}

void StructureController::setCurrentIndex(const QModelIndex& index)
{
    if (m_isRebuilding || index == m_current)
        return;
    moveTo(index);
    const StructureRow* row = m_tree.getData(index);
    m_selection.set(row && row->kind == Kind::Entity ? row->id : OdDbObjectId::kNull);
}

OdDbObjectId StructureController::currentObject() const
{
    const StructureRow* row = m_tree.getData(m_current);
    return row ? row->id : OdDbObjectId::kNull;
}

void StructureController::followSelection()
{
    const OdDbObjectId entity = m_selection.current();
    const StructureRow* row = m_tree.getData(m_current);
    const bool isEntity = row && row->kind == Kind::Entity;
    // An entity has more than one row, and the user may stand on any of them.
    if (!m_tree.showsEntities() || (isEntity && row->id == entity))
        return;
    if (entity.isNull()) {
        if (isEntity)
            moveTo({});
        return;
    }
    const QModelIndex found = m_tree.entityRow(entity);
    if (found.isValid())
        moveTo(found);
}

void StructureController::activate(const QModelIndex& index)
{
    const StructureRow* row = m_tree.getData(index);
    if (!row)
        return;
    if (row->kind == Kind::More) {
        constexpr std::size_t factor = 10;
        m_tree.want(row->id, factor * static_cast<std::size_t>(m_tree.rowCount(index.parent())));
        rebuild();
    } else if (row->kind != Kind::Entity && onBranchWanted) {
        onBranchWanted(index);
    }
}

void StructureController::fillMenu()
{
    const auto later = [this] {
        QMetaObject::invokeMethod(this, &StructureController::refreshMenu, Qt::QueuedConnection);
    };
    m_menu.append({tr("Expand all"), [this] { keepCurrent([this] { m_tree.expandAll(true); }); }});
    m_menu.append({tr("Collapse all"), [this] { collapseAll(); }});
    // The menu turns the mark itself once the action is through, so only then is it time to show it.
    m_menu.append({tr("Show entities"),
                   [this, later] {
                       m_tree.setShowsEntities(!m_tree.showsEntities());
                       refresh();
                       later();
                   },
                   false, true, m_tree.showsEntities()});
    m_menu.append({tr("Show empty blocks and layers"),
                   [this, later] {
                       m_tree.setShowsEmpty(!m_tree.showsEmpty());
                       refresh();
                       later();
                   },
                   false, true, m_tree.showsEmpty()});
    refreshMenu();
}

void StructureController::refreshMenu()
{
    for (int row = 0; row < m_menu.rowCount(); ++row) {
        velm::PanelMenuItem item = m_menu[row];
        item.disabled = !hasDrawing();
        m_menu.update(row, std::move(item));
    }
}
} // namespace workbench
