#include "velm/drawingprops/linetypeobject.h"

#include "velm/drawingprops/ilinetypemodel.h"

#include <QJSEngine>

namespace velm {
LineTypeObject::LineTypeObject(QString name, const OdDbObjectId& id, const IGuiController& gui)
    : m_name(std::move(name)), m_id(id), m_gui(gui)
{
    // A script that calls data() would own the row otherwise.
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

QImage LineTypeObject::lineTypePreview(int width, int height) const
{
    return ILineTypeModel::createBitmap(width, height, m_id, m_gui);
}
} // namespace velm
