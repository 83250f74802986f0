#pragma once

#include "velm/velm_export.h"

#include <QObject>
#include <QString>

#include <memory>

class OdApDocument;
class QJSEngine;
class QQmlEngine;

namespace velm {
/// The QML singleton of what every control must know of units and tool tips. The host pushes the values; nothing is
/// read from a drawing here. Setters do nothing when the value is the same, otherwise they emit the one matching
/// signal.
class VELM_EXPORT Settings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool tooltips READ tooltips NOTIFY tooltipsChanged)
    Q_PROPERTY(int tooltipDelay READ tooltipDelay NOTIFY tooltipDelayChanged)
    Q_PROPERTY(QString linearUnitString READ getLinearUnitString NOTIFY linearUnitStringChanged)
    Q_PROPERTY(QString angularUnitString READ getAngularUnitString NOTIFY angularUnitStringChanged)
    Q_PROPERTY(int linearUnitPrecision READ getLinearUnitPrecision NOTIFY linearUnitPrecisionChanged)
    Q_PROPERTY(int angularUnitPrecision READ getAngularUnitPrecision NOTIFY angularUnitPrecisionChanged)
public:
    ~Settings() override;

    /// The singleton, created at first use.
    static Settings* instance();
    /// The QML factory: the singleton, marked as the program's own. Both arguments are ignored.
    static Settings* create(QQmlEngine* qmlEngine, QJSEngine* jsEngine);
    static void setupInstance();
    /// Deletes the singleton; the next use creates one with its initial values.
    static void destroyInstance();

    /// Remembers the document, not owned, and nothing else.
    void setDoc(const OdApDocument* document);

    bool tooltips() const;
    void setTooltips(bool tooltips);
    /// In milliseconds.
    int tooltipDelay() const;
    void setTooltipDelay(int milliseconds);
    /// The decimals of lengths.
    int getLinearUnitPrecision() const;
    void setLinearUnitPrecision(int precision);
    /// The decimals of angles.
    int getAngularUnitPrecision() const;
    void setAngularUnitPrecision(int precision);
    QString getLinearUnitString() const;
    void setLinearUnitString(const QString& unit);
    QString getAngularUnitString() const;
    /// 0 decimal degrees, 1 degrees, minutes and seconds, 2 grads, 3 radians, 4 surveyor's units. The unit's text
    /// follows from it; a number outside the table keeps the text. The text's signal is emitted at every change of the
    /// type.
    void setAngularUnitType(int type);

public Q_SLOTS:
    /// -1 until it is set.
    int getAngularUnitType() const;
    /// In the host's format, unit included; empty without a host formatter.
    QString formatAngle(double value);
    /// What the host's formatter makes of the text; 0 without one.
    double parseAngle(QString in) const;

Q_SIGNALS:
    void tooltipsChanged();
    void tooltipDelayChanged();
    void linearUnitPrecisionChanged();
    void angularUnitPrecisionChanged();
    void linearUnitStringChanged();
    void angularUnitStringChanged();

private:
    Settings();

    static std::unique_ptr<Settings> m_pInstance;

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
