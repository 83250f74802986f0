#pragma once

#include "velm/velm_export.h"

#include <QColor>
#include <QObject>
#include <QString>

namespace velm {
/// One row of a colour combo.
class VELM_EXPORT ColorObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString type READ getType CONSTANT)
    Q_PROPERTY(int colorIndex READ colorIndex CONSTANT)
    Q_PROPERTY(QColor color READ color CONSTANT)
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(bool drawDiagonal READ drawDiagonal CONSTANT)
public:
    enum class Type
    {
        Custom,   ///< the caller's own colour
        Standard, ///< a colour of the shared array
        Varies,   ///< several colours
        Load,     ///< opens the colour dialog
    };

    explicit ColorObject(Type type, int colorIndex = 0, QColor color = {}, QString name = {},
                         bool drawDiagonal = false);

    Type getTypeAsEnum() const { return m_type; }
    /// "custom", "varies", "load", or empty for a standard row.
    QString getType() const;
    /// The row's place in the shared array of colours; no colour number.
    int colorIndex() const { return m_colorIndex; }
    QColor color() const { return m_color; }
    QString name() const { return m_name; }
    bool drawDiagonal() const { return m_drawDiagonal; }

private:
    int m_colorIndex;
    QColor m_color;
    QString m_name;
    bool m_drawDiagonal;
    Type m_type;
};
} // namespace velm
