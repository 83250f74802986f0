#pragma once

#include "velm/velm_export.h"

#include <QObject>
#include <QString>

namespace velm {
/// One row of a lineweight combo.
class VELM_EXPORT LineWeightObject : public QObject
{
    Q_OBJECT
    // Constant for QML, although the name follows the host's units: a page that shows it listens to the signal.
    Q_PROPERTY(QString lineWeightName READ name CONSTANT)
    Q_PROPERTY(double lineWeightFactor READ factor CONSTANT)
public:
    LineWeightObject(QString name, double factor, int lineWeight);

    QString name() const { return m_name; }
    void setName(const QString& name);
    /// The part of the largest weight, from 0 to 1.
    double factor() const { return m_factor; }
    /// In hundredths of a millimetre; -1 by layer, -2 by block, -3 by default.
    int lineWeight() const { return m_lineWeight; }

Q_SIGNALS:
    void lineWeightNameChanged();

private:
    QString m_name;
    double m_factor;
    int m_lineWeight;
};
} // namespace velm
