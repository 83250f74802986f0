#pragma once

#include "velm/dialogs/basedialogcontroller.h"
#include "velm/drawingprops/iarrowheadmodel.h"

#include <QStringList>
#include <QVariantList>

class OdDbDatabase;
class wxWindow;

namespace workbench {
/// What the page of the arrowhead chooser talks to: all arrowheads, and the one that is chosen.
class ArrowheadDialogController : public velm::BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(QStringList names READ names CONSTANT)
    /// In the order of the names; null for blocks.
    Q_PROPERTY(QVariantList pictures READ pictures CONSTANT)
    Q_PROPERTY(int chosen MEMBER m_chosen NOTIFY chosenChanged)
public:
    ArrowheadDialogController(std::vector<velm::ArrowHeadRecord> records, const QString& internalName);

    QStringList names() const;
    QVariantList pictures() const;
    /// Without an internal name when nothing is chosen.
    velm::ArrowHeadRecord chosenRecord() const;

Q_SIGNALS:
    void chosenChanged();

private:
    bool beforeOk() override { return !chosenRecord().internalName.isEmpty(); }

    const std::vector<velm::ArrowHeadRecord> m_records;
    int m_chosen;
};

/// Asks a person for an arrowhead of all that a drawing has, beginning with the one of an internal name; a record
/// without an internal name when it was cancelled. The pictures are as in arrowheadRecords().
velm::ArrowHeadRecord chooseArrowhead(wxWindow* parent, const OdDbDatabase* database, const QString& internalName,
                                      const QSize& size, const QColor& line);
} // namespace workbench
