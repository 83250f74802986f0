#include "velm/units/unitsinputcontroller.h"

#include "support/fakehost.h"
#include "support/members.h"
#include "support/scopes.h"
#include "support/signallog.h"
#include "velm/units/settings.h"
#include "velm/units/unitsinputcontrollerdelegate.h"

#include <QPointer>
#include <QTest>

#include <cmath>
#include <limits>

using namespace velm;

namespace {
constexpr double noValue = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
const QString ofANewDelegate = "precisionChanged unitStringChanged showUnitLabelChanged valueChanged "
                               "minimumValueChanged maximumValueChanged";
} // namespace

class TestUnitsInputController : public QObject
{
    Q_OBJECT
    velmtest::FakeDialogFactory m_factory;

    ExternalFunctions host()
    {
        ExternalFunctions result;
        result.dlgFactory = [this] { return &m_factory; };
        return result;
    }

private Q_SLOTS:
    void cleanup() { Settings::destroyInstance(); }

    void itsMembersComeInTheOrderOfTheContract()
    {
        QCOMPARE(velmtest::members(UnitsInputController::staticMetaObject),
                 QString("signal: inputTypeChanged() precisionChanged() unitStringChanged() showUnitLabelChanged() "
                         "valueChanged() minimumValueChanged() maximumValueChanged() delegateChanged() "
                         "slot: setShowUnitLabel(bool) getValue() setValue(double) setInputType(int) launchQuickCalc() "
                         "method: formatValue(double) parseValue(QString) validateValue(QString) "
                         "parseValueOrFallback(QString,double) parseValueOrFallback(QString) "
                         "getValidatedValue(QString,double) getValidatedValue(QString) property: inputType= precision "
                         "unitString showUnitLabel= value= minimumValue= maximumValue="));
        QCOMPARE(velmtest::members(UnitsInputControllerDelegate::staticMetaObject),
                 QString("signal: valueChanged() minimumValueChanged() maximumValueChanged() precisionChanged() "
                         "unitStringChanged() showUnitLabelChanged()"));
    }

    void valuesAreClamped()
    {
        // The value that is set, and that of a text that falls back to it.
        const auto clamped = [](double minimum, double maximum, double value) {
            UnitsInputController controller;
            controller.setMinimumValue(minimum);
            controller.setMaximumValue(maximum);
            const double validated = controller.getValidatedValue("none", value);
            const QString text = QString::number(value);
            if (!std::isnan(value) && (controller.getValidatedValue(text) != validated ||
                                       controller.parseValueOrFallback(text, 77.0) != value ||
                                       controller.parseValueOrFallback("none", value) != value))
                return QString("a text and its value differ");
            if (controller.getValue() != 0.0)
                return QString("bounds clamp");
            controller.setValue(value);
            return QString("%1 %2").arg(controller.getValue()).arg(validated);
        };
        QCOMPARE(clamped(-1.0, 9.0, 3.5), QString("3.5 3.5"));
        QCOMPARE(clamped(-1.0, 9.0, 9.5), QString("9 9"));
        QCOMPARE(clamped(5.0, 9.0, 3.0), QString("5 5"));
        QCOMPARE(clamped(5.0, 9.0, noValue), QString("5 nan"));
        QCOMPARE(clamped(5.0, 9.0, -infinity), QString("5 5"));
        // Crossed, the minimum wins but for what a text gives above it.
        QCOMPARE(clamped(8.0, 2.0, 5.0), QString("8 8"));
        QCOMPARE(clamped(8.0, 2.0, 8.0), QString("8 2"));
        QCOMPARE(clamped(8.0, 2.0, 9.0), QString("8 2"));
        const UnitsInputController fresh;
        QVERIFY(std::isnan(fresh.parseValue("none")) && !fresh.validateValue("none"));
        QCOMPARE(fresh.getValidatedValue("none") + fresh.parseValueOrFallback("none"), 0.0);
        QCOMPARE(fresh.getMinimumValue(), -10000.0);
        QCOMPARE(fresh.getMaximumValue(), 10000.0);
    }

    void everySetterTellsAndTheDelegateOnlyOfChanges()
    {
        UnitsInputController controller;
        Settings::instance()->setLinearUnitString("mm");
        velmtest::SignalLog log(controller);
        velmtest::SignalLog inside(*dynamic_cast<QObject*>(controller.getDelegate()));
        for (const char* ofTheDelegate :
             {"valueChanged minimumValueChanged maximumValueChanged showUnitLabelChanged", ""}) {
            controller.setValue(7.0);
            controller.setMinimumValue(1.0);
            controller.setMaximumValue(8.0);
            const QString text = controller.formatValue(1.0);
            controller.setShowUnitLabel(false);
            QCOMPARE(controller.getUnitString(), QString());
            QCOMPARE(controller.formatValue(1.0), text);
            QCOMPARE(log.take(), QString("valueChanged minimumValueChanged maximumValueChanged showUnitLabelChanged"));
            QCOMPARE(inside.take(), QString(ofTheDelegate));
        }
        controller.setValue(noValue);
        QCOMPARE(controller.getValue(), 1.0);
        QCOMPARE(log.take(), QString("valueChanged"));
        // The delegate's signals end there.
        Settings::instance()->setLinearUnitPrecision(7);
        Settings::instance()->setLinearUnitString("km");
        controller.getDelegate()->setValue(2.0);
        QCOMPARE(inside.take(), QString("valueChanged precisionChanged unitStringChanged valueChanged"));
        QCOMPARE(log.take(), QString());
        QCOMPARE(controller.getPrecision(), 7);
        controller.setShowUnitLabel(true);
        QCOMPARE(controller.getUnitString(), QString("km"));
    }

    void anotherTypeBeginsAnew()
    {
        UnitsInputController controller;
        velmtest::SignalLog log(controller);
        controller.setInputType(0);
        QCOMPARE(log.take(), QString());
        for (const int type : {1, 5, -1, 0}) {
            controller.setValue(5.0);
            controller.setMinimumValue(2.0);
            controller.setMaximumValue(6.0);
            controller.setShowUnitLabel(false);
            const QPointer<QObject> former = dynamic_cast<QObject*>(controller.getDelegate());
            log.take();
            controller.setInputType(type);
            // The controller's own handler was there before any listener.
            QCOMPARE(log.take(), ofANewDelegate + " inputTypeChanged");
            QVERIFY(!former);
            QCOMPARE(controller.property("inputType"), QVariant(type == 0 ? 0 : 1));
            QCOMPARE(controller.getValue(), 0.0);
            QCOMPARE(controller.getMinimumValue(), -10000.0);
            QCOMPARE(controller.getMaximumValue(), 10000.0);
            QVERIFY(controller.shouldShowUnitLabel());
            controller.setInputType(type);
            QCOMPARE(log.take(), QString());
        }
        // The signal is what does it.
        controller.setValue(5.0);
        Q_EMIT controller.inputTypeChanged();
        QCOMPARE(controller.getValue(), 0.0);
    }

    void anotherDelegateAnswersFromThenOn()
    {
        UnitsInputController controller;
        controller.setValue(5.0);
        const QPointer<QObject> former = dynamic_cast<QObject*>(controller.getDelegate());
        QStringList seen;
        connect(&controller, &UnitsInputController::precisionChanged, this,
                [&] { seen += QString("%1 %2").arg(former.isNull()).arg(controller.getValue()); });
        velmtest::SignalLog log(controller);
        controller.setDelegate(std::make_unique<UnitsInputControllerDelegate>(1));
        QCOMPARE(seen, QStringList({"1 0"}));
        QCOMPARE(log.take(), ofANewDelegate);
        // The type that shows is the delegate's; the one that was given last isn't.
        QCOMPARE(controller.property("inputType"), QVariant(1));
        controller.setInputType(0);
        QCOMPARE(log.take(), QString());
    }

    void theCalculatorsResultIsClamped()
    {
        UnitsInputController controller;
        controller.setValue(3.0);
        controller.launchQuickCalc(); // without a factory
        const velmtest::ScopedExternalFunctions scope(host());
        std::weak_ptr<OdDbEvalVariant> given;
        velmtest::SignalLog log(controller);
        const auto calculated = [&](double result) {
            // What it returns is not looked at.
            m_factory.calculate = [&](OdDbEvalVariantPtr& variant) {
                variant = OdDbEvalVariant::init(result);
                given = variant;
                return false;
            };
            controller.launchQuickCalc();
            return QString("%1 %2").arg(controller.getValue()).arg(log.take());
        };
        QCOMPARE(calculated(noValue), QString("3 "));
        QCOMPARE(calculated(3.0), QString("3 valueChanged"));
        QCOMPARE(calculated(1e9), QString("10000 valueChanged"));
        QCOMPARE(m_factory.log, QStringList({"calculator 3 modal", "calculator 3 modal", "calculator 3 modal"}));
        QVERIFY(given.expired());
    }

    void aFieldMayGoWhileItsCalculatorIsOpen()
    {
        const velmtest::ScopedExternalFunctions scope(host());
        auto controller = std::make_unique<UnitsInputController>();
        m_factory.calculate = [&](OdDbEvalVariantPtr& variant) {
            controller.reset();
            variant = OdDbEvalVariant::init(1.0);
            return true;
        };
        controller->launchQuickCalc();
        QVERIFY(!controller);
    }
};

QTEST_APPLESS_MAIN(TestUnitsInputController)
#include "tst_unitsinputcontroller.moc"
