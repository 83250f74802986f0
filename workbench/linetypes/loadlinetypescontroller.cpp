#include "linetypes/loadlinetypescontroller.h"

#include "linetypes/linetypelist.h"
#include "linetypes/linetypepicture.h"
#include "od/oddbdatabase.h"

#include <QDir>
#include <QPoint>
#include <QPointer>

#include <wx/app.h>

namespace workbench {
LoadLineTypesController::LoadLineTypesController(OdDbDatabase& database, FileChooser chooser)
    : m_database(OdDbDatabase::keep(&database)), m_chooser(std::move(chooser)), m_model(database)
{
    m_table.setParentId(QStringLiteral("Workbench/LineTypes"));
    m_table.setSourceModel(&m_model);
}

LoadLineTypesController::~LoadLineTypesController() = default;

void LoadLineTypesController::open(const QString& path)
{
    m_path = QDir::toNativeSeparators(path);
    m_content = readLineTypes(path);
    m_model.setLineTypes(std::move(m_content.lineTypes));
    m_table.sort(m_table.sortColumn(), m_table.sortOrder());
    if (m_table.rowCount() > 0)
        m_table.leftClickSelection(0, 0);
    Q_EMIT fileChanged();
}

void LoadLineTypesController::choose(const QString& name)
{
    if (const int row = m_model.row(name); row >= 0)
        m_table.leftClickSelection(m_table.mapSourceRowToProxy(row), 0);
}

void LoadLineTypesController::askForFile()
{
    // Once the page is done with its click: the dialog runs a loop of its own.
    wxTheApp->CallAfter([controller = QPointer(this)] {
        const QString path = controller ? controller->m_chooser() : QString();
        if (controller && !path.isEmpty())
            controller->open(path);
    });
}

QVariantList LoadLineTypesController::strokes(const QVariantList& dashes, int length) const
{
    OdArray<double> pattern;
    for (const QVariant& dash : dashes)
        pattern.append(dash.toDouble());
    QVariantList result;
    for (const auto& [first, last] : lineTypeStrokes(pattern, length))
        result += QPoint(first, last);
    return result;
}

bool LoadLineTypesController::beforeOk()
{
    for (int row = 0; row < m_table.rowCount(); ++row)
        if (m_table.isSelected(row, 0)) {
            const LineType& lineType = m_model.lineType(m_table.mapProxyRowToSource(row));
            m_loaded.append(lineTypeLocalName(loadLineType(*m_database, lineType)->getName()));
        }
    return !m_loaded.isEmpty();
}
} // namespace workbench
