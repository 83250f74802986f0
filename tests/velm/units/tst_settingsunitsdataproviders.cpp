#include "velm/units/settingsunitsdataproviders.h"

#include "od/oddbdatabase.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "support/table.h"
#include "velm/units/settings.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace velm;

namespace {
constexpr double noValue = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
} // namespace

class TestSettingsUnitsDataProviders : public QObject
{
    Q_OBJECT
    SettingsLinearUnitsDataProvider m_linear;
    SettingsAngularUnitsDataProvider m_angular;
    velmtest::FakeUnitFormatter m_formatter;
    OdDbDatabase m_database;

    ExternalFunctions host(bool withFormatter)
    {
        ExternalFunctions result;
        if (withFormatter)
            result.getUnitFormatter = m_formatter.getter();
        result.currentDatabase = [this] { return &m_database; };
        return result;
    }

private Q_SLOTS:
    void init() { m_formatter = {}; }
    void cleanup() { Settings::destroyInstance(); }

    void theHostsFormatterComesFirst()
    {
        const velmtest::ScopedExternalFunctions scope(host(true));
        m_formatter.text = L"1'-6\"";
        QCOMPARE(m_linear.formatValue(18.0), QString("1'-6\""));
        QCOMPARE(m_formatter.log, QStringList({"got for 18", "formatLinear"}));
    }

    void theAngularFlagsFollowTheType_data()
    {
        const auto row = velmtest::columns<int, QString>("type", "flags");
        row("not set yet: the unit is left out", -1, "1000");
        row("degrees: the unit is left out", 0, "1000");
        row("degrees, minutes and seconds carry theirs", 1, "0");
        row("grads: the unit is left out", 2, "1000");
        row("radians: the unit is left out", 3, "1000");
        row("surveyor's units carry theirs", 4, "0");
        row("an unknown type: the unit is left out", 5, "1000");
    }
    void theAngularFlagsFollowTheType()
    {
        QFETCH(int, type);
        QFETCH(QString, flags);
        const velmtest::ScopedExternalFunctions scope(host(true));
        Settings::instance()->setAngularUnitType(type);
        m_angular.formatValue(0.5);
        QCOMPARE(m_formatter.log, QStringList({"got for 0.5", "formatAngular null " + flags}));
    }

    void whatTheFormatterParsesCounts_data()
    {
        const auto row =
            velmtest::columns<bool, std::optional<double>, double, double>("success", "parsed", "linear", "angular");
        const auto value = [](double number) { return std::optional<double>(number); };
        row("a value", true, value(2.5), 2.5, 2.5);
        row("a failure counts for lengths only", false, value(2.5), noValue, 2.5);
        row("nothing written is no value", true, std::optional<double>(), noValue, noValue);
        row("no number is no value", true, value(noValue), noValue, noValue);
        row("minus infinity is no value", true, value(-infinity), noValue, noValue);
    }
    void whatTheFormatterParsesCounts()
    {
        QFETCH(bool, success);
        QFETCH(std::optional<double>, parsed);
        QFETCH(double, linear);
        QFETCH(double, angular);
        const velmtest::ScopedExternalFunctions scope(host(true));
        m_formatter.success = success;
        m_formatter.parsed = parsed;
        QCOMPARE(m_linear.parseValue(" 2.5 mm\n"), linear);
        QCOMPARE(m_linear.validateValue("2.5"), !std::isnan(linear));
        QCOMPARE(m_angular.parseValue(" 2.5 g\n"), angular);
        QCOMPARE(m_angular.validateValue("2.5"), !std::isnan(angular));
        QCOMPARE(m_formatter.log, QStringList({"got for 0", "parseLinear inf '2.5 mm'", "got for 0",
                                               "parseLinear inf '2.5'", "got for 0", "parseAngular inf '2.5 g' null 0",
                                               "got for 0", "parseAngular inf '2.5' null 0"}));
    }

    void withoutAFormatterTheDrawingSpeaks()
    {
        const velmtest::ScopedExternalFunctions scope(host(false));
        OdUnits units;
        units.linearKind = OdUnits::kArchitectural;
        units.angularKind = OdUnits::kGrads;
        units.angularPrecision = 1;
        m_database.formatter().setUnits(units);
        QCOMPARE(m_linear.formatValue(18.0), QString("1'-6\""));
        QCOMPARE(m_linear.parseValue("  1'-6\" "), 18.0);
        QVERIFY(std::isnan(m_linear.parseValue("text")));
        QVERIFY(!m_linear.validateValue(""));
        const double right = std::acos(0.0);
        QCOMPARE(m_angular.formatValue(right), QString("100.0g"));
        QCOMPARE(m_angular.parseValue(" 100g "), right);
        QVERIFY(std::isnan(m_angular.parseValue("text")));
    }

    void withoutBothTheCLocaleSpeaks_data()
    {
        const auto row = velmtest::columns<QString, double>("text", "value");
        row("a number with a unit behind a blank", "  12.5 mm ", 12.5);
        row("a number alone", "-3e2", -300.0);
        row("a unit that touches its number", "12.5mm", noValue);
        row("a unit alone", "mm", noValue);
        row("a decimal comma", "1,5", noValue);
        row("nothing", "", noValue);
        row("blanks", "   ", noValue);
        row("infinity is not refused here", "inf", infinity);
    }
    void withoutBothTheCLocaleSpeaks()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        const velmtest::ScopedLocale german(QLocale(QLocale::German));
        QCOMPARE(m_linear.parseValue(text), value);
        QCOMPARE(m_angular.parseValue(text), value);
    }

    void precisionAndUnitAreTheSettings()
    {
        const velmtest::ScopedLocale german(QLocale(QLocale::German));
        Settings& settings = *Settings::instance();
        settings.setLinearUnitPrecision(3);
        settings.setAngularUnitPrecision(1);
        settings.setLinearUnitString("mm");
        settings.setAngularUnitType(2);
        QCOMPARE(m_linear.formatValue(1.5), QString("1.500"));
        QCOMPARE(m_angular.formatValue(12345.67), QString("12345.7"));
        QCOMPARE(m_linear.getPrecision(), 3);
        QCOMPARE(m_angular.getPrecision(), 1);
        QCOMPARE(m_linear.getUnitString(), QString("mm"));
        QCOMPARE(m_angular.getUnitString(), QString("g"));
        QCOMPARE(m_linear.getMaximumValue(), 10000.0);
        QCOMPARE(m_angular.getMinimumValue(), -10000.0);
    }
};

QTEST_APPLESS_MAIN(TestSettingsUnitsDataProviders)
#include "tst_settingsunitsdataproviders.moc"
