#pragma once

#include "health/findingmodel.h"
#include "health/healthtaskmodel.h"
#include "od/odapdocmanager.h"

#include <functional>

namespace workbench {
class Selection;

/// What the page of the drawing's health talks to: the tasks, and what the current one found. The drawing is looked
/// into when it becomes the current one and after each change.
class HealthController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* tasks READ tasks CONSTANT)
    Q_PROPERTY(QAbstractItemModel* findings READ findings CONSTANT)
    Q_PROPERTY(int currentTask READ currentTask WRITE setCurrentTask NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString description READ description NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY changed)
    Q_PROPERTY(bool isWanted READ isWanted NOTIFY changed)
    Q_PROPERTY(bool hasFindings READ hasFindings NOTIFY changed)
    Q_PROPERTY(bool canSelect READ canSelect NOTIFY changed)
    Q_PROPERTY(bool canFix READ canFix NOTIFY changed)
public:
    /// Both outlive the controller.
    HealthController(OdApDocManager& documents, Selection& selection);
    ~HealthController() override;

    HealthTaskModel* tasks() { return &m_tasks; }
    FindingModel* findings() { return &m_findings; }
    int currentTask() const { return m_currentTask; }
    void setCurrentTask(int row);
    // Of the current task; empty without one.
    QString title() const;
    QString description() const;
    QString advice() const;
    bool hasDrawing() const { return m_documents.curDocument() != nullptr; }
    /// Whether the current task is looked for at all.
    bool isWanted() const;
    bool canSelect() const;
    bool hasFindings() const { return m_findings.size() > 0; }
    /// Whether anything of it isn't on a locked layer.
    bool canFix() const { return m_fixableCount > 0; }

    /// To call after a change of the drawing.
    void refresh();

    /// What was fixed, once the drawing has changed.
    std::function<void(const QString& what)> onFixed;

public Q_SLOTS:
    /// Selects all that the current task found and shows it on the canvas.
    void select();
    /// The same with one of them.
    void selectFinding(int row);
    /// Erases all that the current task finds but for what is on locked layers.
    void fix();

Q_SIGNALS:
    void changed();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    void selectAll(const std::vector<OdDbObjectId>& findings);
    void showFindings();

    OdApDocManager& m_documents;
    Selection& m_selection;
    HealthTaskModel m_tasks;
    FindingModel m_findings;
    int m_currentTask = 0;
    int m_fixableCount = 0; // of the findings
};
} // namespace workbench
