#include "health/healthcontroller.h"

#include "drawing/selection.h"
#include "health/healthtasks.h"
#include "od/oddbdatabase.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/services/iqttasktraits.h"

#include <algorithm>

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
    m_fixableCount = static_cast<int>(std::ranges::count_if(m_findings.getItems(), isFixable));
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
    const QString advice = traitsOf(m_tasks.getItem(m_currentTask)).traitText3();
    const int locked = m_findings.size() - m_fixableCount;
    return locked > 0 ? tr("%1 On locked layers: %2, which stay.").arg(advice).arg(locked) : advice;
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
    if (!hasFindings())
        return;
    const int fixed = m_fixableCount;
    for (const OdDbObjectId& finding : std::vector(m_findings.getItems()))
        if (isFixable(finding))
            finding.openObject()->erase();
    if (fixed > 0)
        m_selection.clear();
    refresh();
    const QString what = tr("%1: %2 fixed").arg(title()).arg(fixed);
    if (onFixed)
        onFixed(hasFindings() ? tr("%1, %2 left since their layers are locked").arg(what).arg(m_findings.size())
                              : what);
}
} // namespace workbench
