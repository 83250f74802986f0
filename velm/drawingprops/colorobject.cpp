#include "velm/drawingprops/colorobject.h"

#include <QJSEngine>

namespace velm {
ColorObject::ColorObject(Type type, int colorIndex, QColor color, QString name, bool drawDiagonal)
    : m_colorIndex(colorIndex), m_color(color), m_name(std::move(name)), m_drawDiagonal(drawDiagonal), m_type(type)
{
    // A script that calls data() would own the row otherwise.
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

QString ColorObject::getType() const
{
    switch (m_type) {
    case Type::Custom:
        return QStringLiteral("custom");
    case Type::Varies:
        return QStringLiteral("varies");
    case Type::Load:
        return QStringLiteral("load");
    case Type::Standard:
        break;
    }
    return {};
}
} // namespace velm
