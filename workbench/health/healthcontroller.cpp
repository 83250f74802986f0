#include "health/healthcontroller.h"

#include "drawing/selection.h"
#include "od/oddbdatabase.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/services/iqttasktraits.h"

namespace workbench {
namespace {
/// Empty ones without a task.
const velm::dwghealth::IQtTaskTraits& traitsOf(const HealthTask* task)
{
    return velm::dwghealth::getQtTaskTraits(task ? task->type : oc::dwghealth::ETaskType(-1));
}
} // namespace

HealthController::HealthController(OdApDocManager& documents, Selection& selection)
    : m_documents(documents), m_selection(selection)
{
    m_documents.addReactor(this);
    refresh();
}

HealthController::~HealthController()
{
    m_documents.removeReactor(this);
}

void HealthController::documentBecameCurrent(OdApDocument*)
{
    // The rows of another drawing are others, even where it lies where the former one lay.
    m_findings.clear();
    refresh();
}

void HealthController::refresh()
{
    OdApDocument* document = m_documents.curDocument();
    m_tasks.check(document ? document->database() : nullptr);
    showFindings();
}

void HealthController::showFindings()
{
    const HealthTask* task = m_tasks.getItem(m_currentTask);
    m_findings.show(task ? task->findings : std::vector<OdDbObjectId>());
    Q_EMIT changed();
}

void HealthController::setCurrentTask(int row)
{
    if (row == m_currentTask)
        return;
    m_currentTask = row;
    showFindings();
}

QString HealthController::title() const
{
    return traitsOf(m_tasks.getItem(m_currentTask)).traitText1();
}

QString HealthController::description() const
{
    return traitsOf(m_tasks.getItem(m_currentTask)).traitText2();
}

QString HealthController::advice() const
{
    return traitsOf(m_tasks.getItem(m_currentTask)).traitText3();
}

bool HealthController::isWanted() const
{
    return traitsOf(m_tasks.getItem(m_currentTask)).traitFlag1();
}

bool HealthController::canSelect() const
{
    return m_findings.size() > 0 && traitsOf(m_tasks.getItem(m_currentTask)).traitFlag2();
}

void HealthController::select()
{
    selectAll(m_findings.getItems());
}

void HealthController::selectFinding(int row)
{
    if (const OdDbObjectId* finding = m_findings.getItem(row))
        selectAll({*finding});
}

void HealthController::selectAll(const std::vector<OdDbObjectId>& findings)
{
    if (!canSelect())
        return;
    m_selection.set(findings, findings.front());
    velm::processCommand(L"ZOOM SELECTION");
}

void HealthController::fix()
{
    // What was found may have come to use since.
    refresh();
    const std::vector<OdDbObjectId> findings = m_findings.getItems();
    if (findings.empty())
        return;
    for (const OdDbObjectId& finding : findings)
        finding.openObject()->erase();
    m_selection.clear();
    const QString what = tr("%1: %2 fixed").arg(title()).arg(findings.size());
    refresh();
    if (onFixed)
        onFixed(what);
}
} // namespace workbench
