#pragma once

#include "velm/units/ilinearunitsdataprovider.h"
#include "velm/units/unitsinputcontroller.h"

#include <QVariantList>

#include <memory>
#include <vector>

namespace workbench {
/// What the page of units talks to: a length and an angle as the drawing writes them, and the same two in every other
/// kind of units. Whichever is edited, all follow; the bounds of the first two hold for all.
class UnitsController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject* length READ length CONSTANT)
    Q_PROPERTY(QObject* angle READ angle CONSTANT)
    /// Rows of "label" and "controller".
    Q_PROPERTY(QVariantList lengths READ lengths CONSTANT)
    Q_PROPERTY(QVariantList angles READ angles CONSTANT)
public:
    UnitsController();

    velm::UnitsInputController* length() const { return m_length.drawing; }
    velm::UnitsInputController* angle() const { return m_angle.drawing; }
    QVariantList lengths() const { return m_length.rows; }
    QVariantList angles() const { return m_angle.rows; }

public Q_SLOTS:
    /// Opens the dialog of the drawing's units.
    void editUnits();

private:
    /// One value in all kinds; the controllers are the page controller's children.
    struct Value
    {
        velm::UnitsInputController* drawing = nullptr;
        std::vector<velm::UnitsInputController*> kinds;
        QVariantList rows;
        bool isFollowing = false;
    };

    void begin(Value& value, int inputType);
    void addKind(Value& value, const QString& label, std::unique_ptr<velm::ILinearUnitsDataProvider> provider);
    void connectValue(Value& value, velm::UnitsInputController& controller);

    Value m_length;
    Value m_angle;
};
} // namespace workbench
