#include "house.h"
#include "panels/entitytablemodel.h"
#include "support/table.h"
#include "units/calculation.h"
#include "units/calculatorcontroller.h"
#include "units/kindunitsprovider.h"
#include "units/unitscontroller.h"
#include "units/unitsdialogcontroller.h"
#include "velm/units/settings.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>
#include <numbers>

using namespace workbench;
using velm::UnitsInputController;

/// What the pages of units and the calculator talk to.
class UnitsControllersTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void calculates_data()
    {
        velmtest::columns<QString, double>("expression", "value");
        const auto row = [](const char* expression, double value) {
            QTest::newRow(expression) << QString::fromLatin1(expression) << value;
        };
        row("1 + 2 * 3", 7);
        row("(1+2)*3", 9);
        row("8/4/2", 1);
        row("8-4-2", 2);
        row("2^3^2", 512);
        row("-2^2", -4);
        row("2^-1", 0.5);
        row("2*-3", -6);
        row("--3", 3);
        row("+.5", 0.5);
        row("1.e2", 100);
        row("1.5E-1", 0.15);
        row("0.1+0.2", 0.1 + 0.2);
        row("010", 10); // no octal number
        row("PI", std::numbers::pi);
        row("ans/2", 21);
        row("sqrt(abs(-16))", 4);
        row("max(1, min(5, 3), 2)", 3);
        row("sin(30)", 0.5);
        row("atan(1)", 45);
        row("rad(180)", std::numbers::pi);
        row("deg(pi)", 180);
        row("round(2.5)", 3);
        row(" 1\n+\t1 ", 2);
        QTest::newRow("a hundred sums in a row") << QStringLiteral("1+").repeated(99) + QLatin1Char('1') << 100.0;
    }
    void calculates()
    {
        QFETCH(QString, expression);
        QFETCH(double, value);
        const Calculated result = calculate(expression, 42);
        QCOMPARE(result.problem, QString());
        QCOMPARE(result.value, value);
    }

    void refusesWhatIsNoNumber_data()
    {
        velmtest::columns<QString, QString>("expression", "why");
        const auto row = [](const char* expression, const char* why) {
            QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(why);
        };
        row(" ", "Type an expression.");
        row("1+", "Something is missing at the end.");
        row("(1", "Something is missing at the end.");
        row("1)", "\")\" at place 2 isn't understood.");
        row("2 3", "\"3\" at place 3 isn't understood.");
        row("1,5", "\",\" at place 2 isn't understood.");
        row("2pi", "\"p\" at place 2 isn't understood.");
        row("0x10", "\"x\" at place 2 isn't understood.");
        row("1e", "\"e\" at place 2 isn't understood.");
        row("1.2.3", "\".\" at place 4 isn't understood.");
        row(".", "\".\" is no number.");
        row("1/0", "The result is no finite number.");
        row("0/0", "The result is no finite number.");
        row("sqrt(-1)", "The result is no finite number.");
        row("10^999", "The result is no finite number.");
        row("1e999", "\"1e999\" is no number.");
        row("Infinity", "The calculator doesn't know \"infinity\".");
        row("Math.sin(1)", "The calculator doesn't know \"math\".");
        row("eval(1)", "The calculator doesn't know \"eval\".");
        row("constructor", "The calculator doesn't know \"constructor\".");
        row("sin", "\"sin\" is followed by a parenthesis.");
        row("sin(1, 2)", "\"sin\" takes one value.");
        row("max()", "\")\" at place 5 isn't understood.");
        row("1;2", "\";\" at place 2 isn't understood.");
        row("ans=1", "\"=\" at place 4 isn't understood.");
        row("'1'", "\"'\" at place 1 isn't understood.");
        row("٣", "\"٣\" at place 1 isn't understood.");
        QTest::newRow("deep parentheses")
            << QString(900, u'(') << QStringLiteral("The expression is nested too deeply.");
        QTest::newRow("many signs") << QString(900, u'-') << QStringLiteral("The expression is nested too deeply.");
        QTest::newRow("a long text") << QString(100000, u'1') << QStringLiteral("The expression is too long.");
    }
    void refusesWhatIsNoNumber()
    {
        QFETCH(QString, expression);
        QFETCH(QString, why);
        QCOMPARE(calculate(expression, 42).problem, why);
    }

    void theCalculatorBeginsWithTheValue()
    {
        CalculatorController controller(0.1 + 0.2);
        QCOMPARE(controller.value(), 0.1 + 0.2);
        QVERIFY(controller.beforeEndModal(5100));
        controller.setExpression(QStringLiteral("ans*"));
        QCOMPARE(controller.result(), QString());
        QVERIFY(!controller.beforeEndModal(5100));
        QVERIFY(controller.beforeEndModal(5101));
        QCOMPARE(CalculatorController(std::numeric_limits<double>::quiet_NaN()).expression(), QString());
    }

    void anEditIsFollowedByAllKinds()
    {
        velm::Settings::instance()->setLinearUnitPrecision(4);
        UnitsController page;
        const auto row = [](const QVariantList& rows, int kind) {
            return qobject_cast<UnitsInputController*>(
                rows[kind].toMap().value(QStringLiteral("controller")).value<QObject*>());
        };
        const auto shown = [&](int kind) {
            const UnitsInputController* controller = row(page.lengths(), kind);
            return controller->formatValue(controller->getValue());
        };
        UnitsInputController* engineering = row(page.lengths(), 2);
        engineering->setValue(engineering->parseValue(QStringLiteral(" 1'-3.5 ")));
        QCOMPARE(page.length()->getValue(), 15.5);
        const QStringList expected = {"1.5500E+01", "15.5000", "1'-3.5000\"", "1'-3 1/2\"", "15 1/2"};
        for (int kind = 0; kind < expected.size(); ++kind)
            QCOMPARE(shown(kind), expected[kind]);
        page.angle()->setValue(std::numbers::pi / 2);
        UnitsInputController* bearing = row(page.angles(), 4);
        QCOMPARE(bearing->formatValue(bearing->getValue()), QStringLiteral("N"));
        QVERIFY(!bearing->validateValue(QStringLiteral("N 91 E")));
        velm::Settings::destroyInstance();
    }

    void theBoundsHoldForAllKinds()
    {
        UnitsController page;
        auto* kind = qobject_cast<UnitsInputController*>(
            page.lengths().first().toMap().value(QStringLiteral("controller")).value<QObject*>());
        page.length()->setMaximumValue(50);
        QSignalSpy changed(kind, &UnitsInputController::valueChanged);
        kind->setValue(70);
        QCOMPARE(page.length()->getValue(), 50.0);
        QCOMPARE(kind->getValue(), 50.0);
        QCOMPARE(changed.size(), 2);
        velm::Settings::destroyInstance();
    }

    void theDialogChangesACopy()
    {
        OdUnits units;
        units.linearPrecision = 3;
        UnitsDialogController dialog(units);
        QCOMPARE(dialog.linearSample(), QStringLiteral("41.281"));
        dialog.setLinearKind(3);
        dialog.setAngularKind(OdUnits::kDegreesMinutesSeconds);
        dialog.setAngularPrecision(1);
        QCOMPARE(dialog.linearSample(), QStringLiteral("3'-5 1/4\""));
        QCOMPARE(dialog.angularSample(), QStringLiteral("45d24'"));
        QCOMPARE(dialog.linearPrecisions().size(), 9);
        QCOMPARE(dialog.linearPrecisions().at(3), QStringLiteral("1/8\""));
        QCOMPARE(dialog.angularPrecisions().at(5), QStringLiteral("0d0'0.0\""));
        QCOMPARE(dialog.units().linearPrecision, 3);
        QCOMPARE(dialog.units().linearKind, OdUnits::kArchitectural);
        QCOMPARE(units.linearKind, OdUnits::kDecimal);
    }

    void theTableOfEntitiesTellsOfOtherUnits()
    {
        const House house;
        EntityTableModel table;
        table.setDatabase(house.database);
        QSignalSpy changed(&table, &QAbstractItemModel::dataChanged);
        table.refresh();
        QVERIFY(changed.isEmpty());
        OdUnits units = house.database->formatter().units();
        units.linearPrecision = 1;
        house.database->formatter().setUnits(units);
        table.refresh();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(table.index(0, EntityTableModel::LengthColumn).data().toString(), QStringLiteral("5.0"));
        table.refresh();
        QCOMPARE(changed.size(), 1);
    }
};

QTEST_MAIN(UnitsControllersTest)
#include "tst_unitscontrollers.moc"
