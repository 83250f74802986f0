#pragma once

#include "od/oddbobjectid.h"
#include "velm/velm_export.h"

#include <QImage>
#include <QObject>
#include <QString>

namespace velm {
class IGuiController;

/// One row of a linetype combo.
class VELM_EXPORT LineTypeObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString lineTypeName READ name CONSTANT)
public:
    /// `id` is null for the rows that are no linetype. `gui` outlives the object.
    LineTypeObject(QString name, const OdDbObjectId& id, const IGuiController& gui);

    QString name() const { return m_name; }
    const OdDbObjectId& id() const { return m_id; }

public Q_SLOTS:
    /// The line on the ground of a combo, in pixels; null when the host draws none.
    QImage lineTypePreview(int width, int height) const;

private:
    QString m_name;
    OdDbObjectId m_id;
    const IGuiController& m_gui;
};
} // namespace velm
