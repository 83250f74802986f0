#include "sheetset/layoutdata.h"

#include "velm/sheetset/isheetsetfilesystemtreemodel.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace workbench {
LayoutData::LayoutData(const QString& path, velm::ISheetSetFileSystemTreeModel& model) : m_path(path), m_model(model)
{}

QString LayoutData::icon() const
{
    return QStringLiteral("sheetset-view.svg");
}

QString LayoutData::name() const
{
    return QFileInfo(m_path).fileName();
}

QString LayoutData::tooltip() const
{
    return QCoreApplication::translate("LayoutData", "Drag the layout to the drawing area to see what it shows");
}

bool LayoutData::dropValid() const
{
    return m_model.isModelViewDropValid();
}
} // namespace workbench
