#pragma once

#include "od/odunitsformatter.h"
#include "velm/units/ilinearunitsdataprovider.h"

namespace workbench {
/// Writes lengths or angles in one kind of units, whatever the drawing's kind is, with the drawing's precision.
class KindUnitsProvider : public velm::ILinearUnitsDataProvider
{
public:
    explicit KindUnitsProvider(OdUnits::LinearKind kind);
    explicit KindUnitsProvider(OdUnits::AngularKind kind);

    int getPrecision() override;
    QString formatValue(double value) override;
    double parseValue(const QString& text) override;
    double getMaximumValue() override { return 1e9; }
    double getMinimumValue() override { return -1e9; }
    /// The texts have their units in them.
    QString getUnitString() override { return {}; }
    bool validateValue(const QString& text) override;

private:
    OdUnitsFormatter formatter();

    OdUnits m_units;
    bool m_isAngular;
};
} // namespace workbench
