#include "velm/units/unitsinputcontrollerdelegate.h"

#include "support/signallog.h"
#include "velm/units/ilinearunitsdataprovider.h"
#include "velm/units/settings.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace velm;

namespace {
constexpr double epsilon = std::numeric_limits<double>::epsilon();

struct FakeProvider : ILinearUnitsDataProvider
{
    explicit FakeProvider(bool& alive) : m_alive(alive) { m_alive = true; }
    ~FakeProvider() override { m_alive = false; }
    int getPrecision() override { return 6; }
    QString formatValue(double value) override { return QString("<%1>").arg(value); }
    double parseValue(const QString& text) override { return static_cast<double>(text.size()); }
    double getMaximumValue() override { return 2.0; }
    double getMinimumValue() override { return 1.0; }
    QString getUnitString() override { return "furlong"; }
    bool validateValue(const QString& text) override { return text == "right"; }

    bool& m_alive;
};
} // namespace

class TestUnitsInputControllerDelegate : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Settings::destroyInstance(); }

    void aChangeIsMoreThanTheEpsilon()
    {
        const auto changes = [](double from, double to) {
            UnitsInputControllerDelegate delegate(0);
            delegate.setValue(from);
            velmtest::SignalLog log(delegate);
            delegate.setValue(to);
            return delegate.getValue() == to && log.take() == "valueChanged";
        };
        QVERIFY(!changes(0.0, epsilon));
        QVERIFY(changes(0.0, epsilon * 1.5));
        QVERIFY(!changes(1.0, 1.0 + epsilon));
        QVERIFY(changes(2.0, 2.0 + 2.0 * epsilon));
        QVERIFY(!changes(1.0, std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(changes(1.0, -std::numeric_limits<double>::infinity())); // the bounds are not asked
    }

    void boundsMayCrossAndTellOfChangesOnly()
    {
        UnitsInputControllerDelegate delegate(0);
        delegate.setValue(3.0);
        velmtest::SignalLog log(delegate);
        delegate.setMinimumValue(-10000.0);
        delegate.setMaximumValue(10000.0);
        QCOMPARE(log.take(), QString());
        delegate.setMinimumValue(9.0);
        delegate.setMaximumValue(-9.0);
        delegate.setMaximumValue(std::nextafter(-9.0, 0.0)); // the plainest difference counts
        QCOMPARE(log.take(), QString("minimumValueChanged maximumValueChanged maximumValueChanged"));
        QCOMPARE(delegate.getValue(), 3.0);
    }

    void bothKindsHearOfTheLinearSettingsAlone()
    {
        Settings& settings = *Settings::instance();
        for (const int type : {0, 1, 2, -1}) {
            settings.setLinearUnitPrecision(2);
            settings.setAngularUnitPrecision(2);
            settings.setLinearUnitString("in");
            settings.setAngularUnitType(0);
            UnitsInputControllerDelegate delegate(type);
            QCOMPARE(delegate.getInputType(), type == 0 ? 0 : 1);
            velmtest::SignalLog log(delegate);
            settings.setAngularUnitPrecision(5);
            settings.setAngularUnitType(2);
            QCOMPARE(log.take(), QString());
            settings.setLinearUnitPrecision(4);
            settings.setLinearUnitString("mm");
            QCOMPARE(log.take(), QString("precisionChanged unitStringChanged"));
            QCOMPARE(delegate.getPrecision(), type == 0 ? 4 : 5);
            QCOMPARE(delegate.getUnitString(), QString(type == 0 ? "mm" : "g"));
        }
    }

    void anotherProviderBringsItsBoundsAndKeepsTheValue()
    {
        bool first = false;
        bool second = false;
        {
            UnitsInputControllerDelegate delegate(0);
            delegate.setDataProvider(std::make_unique<FakeProvider>(first));
            delegate.setValue(50.0);
            delegate.setMinimumValue(-7.0);
            delegate.setMaximumValue(7.0);
            velmtest::SignalLog log(delegate);
            delegate.setDataProvider(std::make_unique<FakeProvider>(second));
            QVERIFY(!first && second);
            QCOMPARE(log.take(), QString("precisionChanged unitStringChanged minimumValueChanged maximumValueChanged "
                                         "valueChanged"));
            QCOMPARE(delegate.getMinimumValue(), 1.0);
            QCOMPARE(delegate.getMaximumValue(), 2.0);
            QCOMPARE(delegate.getValue(), 50.0);
            QCOMPARE(delegate.getPrecision(), 6);
            QCOMPARE(delegate.formatValue(0.5), QString("<0.5>"));
            QCOMPARE(delegate.parseValue("four"), 4.0);
            QVERIFY(delegate.validateValue("right") && !delegate.validateValue("wrong"));
            QCOMPARE(delegate.getUnitString(), QString("furlong"));
            delegate.setShowUnitLabel(true);
            QCOMPARE(log.take(), QString());
            delegate.setShowUnitLabel(false);
            QCOMPARE(log.take(), QString("showUnitLabelChanged"));
            QCOMPARE(delegate.getUnitString(), QString());
        }
        QVERIFY(!second);
    }
};

QTEST_APPLESS_MAIN(TestUnitsInputControllerDelegate)
#include "tst_unitsinputcontrollerdelegate.moc"
