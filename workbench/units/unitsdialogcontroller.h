#pragma once

#include "od/odunitsformatter.h"
#include "velm/dialogs/basedialogcontroller.h"

#include <QStringList>

namespace workbench {
/// What the page of the units dialog talks to: a copy of a drawing's units, and samples of what they write.
class UnitsDialogController : public velm::BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(QStringList linearKinds READ linearKinds CONSTANT)
    Q_PROPERTY(QStringList angularKinds READ angularKinds CONSTANT)
    Q_PROPERTY(int linearKind READ linearKind WRITE setLinearKind NOTIFY changed)
    Q_PROPERTY(int linearPrecision READ linearPrecision WRITE setLinearPrecision NOTIFY changed)
    Q_PROPERTY(int angularKind READ angularKind WRITE setAngularKind NOTIFY changed)
    Q_PROPERTY(int angularPrecision READ angularPrecision WRITE setAngularPrecision NOTIFY changed)
    Q_PROPERTY(QString linearSample READ linearSample NOTIFY changed)
    Q_PROPERTY(QString angularSample READ angularSample NOTIFY changed)
    /// What the precisions stand for, from 0 to 8.
    Q_PROPERTY(QStringList linearPrecisions READ linearPrecisions NOTIFY changed)
    Q_PROPERTY(QStringList angularPrecisions READ angularPrecisions NOTIFY changed)
public:
    explicit UnitsDialogController(const OdUnits& units) : m_units(units) {}

    const OdUnits& units() const { return m_units; }

    /// The names of the kinds, in their order.
    static QStringList linearKinds();
    static QStringList angularKinds();
    // The kinds by their places in the lists.
    int linearKind() const { return m_units.linearKind - OdUnits::kScientific; }
    void setLinearKind(int kind);
    int linearPrecision() const { return m_units.linearPrecision; }
    void setLinearPrecision(int precision);
    int angularKind() const { return m_units.angularKind; }
    void setAngularKind(int kind);
    int angularPrecision() const { return m_units.angularPrecision; }
    void setAngularPrecision(int precision);
    QString linearSample() const;
    QString angularSample() const;
    QStringList linearPrecisions() const;
    QStringList angularPrecisions() const;

Q_SIGNALS:
    void changed();

private:
    OdUnits m_units;
};
} // namespace workbench
