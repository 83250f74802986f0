#include "units/unitscontroller.h"

#include "units/kindunitsprovider.h"
#include "units/unitsdialogcontroller.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/units/iunitsinputcontrollerdelegate.h"

#include <QVariantMap>

#include <numbers>

namespace workbench {
UnitsController::UnitsController()
{
    begin(m_length, 0);
    begin(m_angle, 1);
    int kind = OdUnits::kScientific;
    for (const QString& label : UnitsDialogController::linearKinds())
        addKind(m_length, label, std::make_unique<KindUnitsProvider>(static_cast<OdUnits::LinearKind>(kind++)));
    kind = OdUnits::kDecimalDegrees;
    for (const QString& label : UnitsDialogController::angularKinds())
        addKind(m_angle, label, std::make_unique<KindUnitsProvider>(static_cast<OdUnits::AngularKind>(kind++)));

    length()->setMinimumValue(0.0);
    length()->setMaximumValue(1000.0);
    length()->setValue(41.28125);
    angle()->setMinimumValue(-std::numbers::pi);
    angle()->setMaximumValue(std::numbers::pi);
    angle()->setValue(std::numbers::pi / 4);
}

void UnitsController::begin(Value& value, int inputType)
{
    value.drawing = new velm::UnitsInputController(this);
    value.drawing->setInputType(inputType);
    connectValue(value, *value.drawing);
}

void UnitsController::addKind(Value& value, const QString& label,
                              std::unique_ptr<velm::ILinearUnitsDataProvider> provider)
{
    auto* controller = new velm::UnitsInputController(this);
    controller->setInputType(value.drawing->getInputType());
    controller->getDelegate()->setDataProvider(std::move(provider));
    connectValue(value, *controller);
    value.kinds.push_back(controller);
    value.rows.append(QVariantMap{{QStringLiteral("label"), label},
                                  {QStringLiteral("controller"), QVariant::fromValue<QObject*>(controller)}});
}

void UnitsController::connectValue(Value& value, velm::UnitsInputController& controller)
{
    connect(&controller, &velm::UnitsInputController::valueChanged, this, [&value, &controller] {
        if (std::exchange(value.isFollowing, true))
            return;
        if (&controller != value.drawing)
            value.drawing->setValue(controller.getValue());
        for (velm::UnitsInputController* kind : value.kinds)
            kind->setValue(value.drawing->getValue());
        value.isFollowing = false;
    });
}

void UnitsController::editUnits()
{
    velm::processCommand(L"UNITS");
}
} // namespace workbench
