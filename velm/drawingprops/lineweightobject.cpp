#include "velm/drawingprops/lineweightobject.h"

#include <QJSEngine>

namespace velm {
LineWeightObject::LineWeightObject(QString name, double factor, int lineWeight)
    : m_name(std::move(name)), m_factor(factor), m_lineWeight(lineWeight)
{
    // A script that calls data() would own the row otherwise.
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

void LineWeightObject::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT lineWeightNameChanged();
}
} // namespace velm
