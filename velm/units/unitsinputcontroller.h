#pragma once

#include "velm/velm_export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace velm {
class IUnitsInputControllerDelegate;

/// The QML side of a field for a length or an angle: it clamps what is set and tells the page of changes. The value,
/// its bounds and its text are the delegate's. The formatter is chosen anew at each call, so that another drawing takes
/// effect at the next format or parse. The delegate's own signals don't come through: a page hears of changed settings
/// by setDelegate() only.
class VELM_EXPORT UnitsInputController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int inputType READ getInputType WRITE setInputType NOTIFY inputTypeChanged)
    Q_PROPERTY(int precision READ getPrecision NOTIFY precisionChanged)
    Q_PROPERTY(QString unitString READ getUnitString NOTIFY unitStringChanged)
    Q_PROPERTY(bool showUnitLabel READ shouldShowUnitLabel WRITE setShowUnitLabel NOTIFY showUnitLabelChanged)
    Q_PROPERTY(double value READ getValue WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double minimumValue READ getMinimumValue WRITE setMinimumValue NOTIFY minimumValueChanged)
    Q_PROPERTY(double maximumValue READ getMaximumValue WRITE setMaximumValue NOTIFY maximumValueChanged)
public:
    /// For lengths.
    explicit UnitsInputController(QObject* parent = nullptr);
    ~UnitsInputController() override;

    /// Whether it is angular, whatever number was set.
    bool getInputType() const;
    int getPrecision() const;
    QString getUnitString() const;
    bool shouldShowUnitLabel() const;
    double getMinimumValue() const;
    /// The signal comes at every call, as with all setters but setInputType(); the value isn't clamped again.
    void setMinimumValue(double minimum);
    double getMaximumValue() const;
    void setMaximumValue(double maximum);
    IUnitsInputControllerDelegate* getDelegate() const;
    /// Replaces the delegate, which must not be null, and destroys the former one.
    void setDelegate(std::unique_ptr<IUnitsInputControllerDelegate> delegate);

    Q_INVOKABLE QString formatValue(double value) const;
    /// NaN when the text is no value.
    Q_INVOKABLE double parseValue(QString text) const;
    Q_INVOKABLE bool validateValue(QString text) const;
    /// Not clamped.
    Q_INVOKABLE double parseValueOrFallback(QString text, double fallbackValue = 0.0) const;
    /// Value or fallback, clamped; a minimum above the maximum wins. A NaN fallback stays NaN.
    Q_INVOKABLE double getValidatedValue(QString text, double fallbackValue = 0.0) const;

public Q_SLOTS:
    void setShowUnitLabel(bool show);
    double getValue() const;
    /// Clamps to the bounds, the minimum winning; a NaN gives the minimum. The signal comes at every call.
    void setValue(double value);
    /// 0 linear, any other number angular. Another number than the last one makes a new delegate: value, bounds and
    /// unit label begin anew, so a field sets its type first.
    void setInputType(int inputType);
    /// Lets the user work out the value in the host's calculator.
    void launchQuickCalc();

Q_SIGNALS:
    void inputTypeChanged();
    void precisionChanged();
    void unitStringChanged();
    void showUnitLabelChanged();
    void valueChanged();
    void minimumValueChanged();
    void maximumValueChanged();
    /// Never emitted.
    void delegateChanged();

private:
    void onInputTypeChanged();
    /// The entry for a delegate's signals; nothing in the library is connected to it.
    void onSettingsChanged();

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
