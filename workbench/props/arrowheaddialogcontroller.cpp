#include "props/arrowheaddialogcontroller.h"

#include "props/arrowheadrecords.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/ihostdialog.h"

#include <wx/defs.h>

#include <algorithm>

namespace workbench {
ArrowheadDialogController::ArrowheadDialogController(std::vector<velm::ArrowHeadRecord> records,
                                                     const QString& internalName)
    : m_records(std::move(records))
{
    const auto isCurrent = [&](const velm::ArrowHeadRecord& record) {
        return record.internalName.compare(internalName, Qt::CaseInsensitive) == 0;
    };
    const auto current = std::ranges::find_if(m_records, isCurrent);
    m_chosen = current == m_records.end() ? -1 : static_cast<int>(current - m_records.begin());
}

QStringList ArrowheadDialogController::names() const
{
    QStringList result;
    for (const velm::ArrowHeadRecord& record : m_records)
        result.append(record.shownName);
    return result;
}

QVariantList ArrowheadDialogController::pictures() const
{
    QVariantList result;
    for (const velm::ArrowHeadRecord& record : m_records)
        result.append(QVariant::fromValue(record.preview));
    return result;
}

velm::ArrowHeadRecord ArrowheadDialogController::chosenRecord() const
{
    const bool isRecord = m_chosen >= 0 && m_chosen < static_cast<int>(m_records.size());
    return isRecord ? m_records[static_cast<std::size_t>(m_chosen)] : velm::ArrowHeadRecord();
}

velm::ArrowHeadRecord chooseArrowhead(wxWindow* parent, const OdDbDatabase* database, const QString& internalName,
                                      const QSize& size, const QColor& line)
{
    ArrowheadDialogController controller(allArrowheadRecords(database, size, line), internalName);
    const auto dialog = velm::guiController()->createDialog(velm::getUIFullUrl("Workbench/ArrowheadDialog.qml"),
                                                            &controller, parent, {}, nullptr);
    return dialog->showModal() == wxID_OK ? controller.chosenRecord() : velm::ArrowHeadRecord();
}
} // namespace workbench
