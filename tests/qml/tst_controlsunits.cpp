#include "shownpage.h"

#include "support/table.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/units/ilinearunitsdataprovider.h"
#include "velm/units/iunitsinputcontrollerdelegate.h"
#include "velm/units/settings.h"
#include "velm/units/unitsinputcontroller.h"

#include <QClipboard>
#include <QSignalSpy>

#include <cmath>

using namespace velm;
using velmtest::PageEngine;
using velmtest::Shown;

namespace {
/// A field over a controller of values from -100 to 100, with a second field to go to.
class ShownField
{
public:
    explicit ShownField(double value, int inputType = 0)
    {
        // An engine begins with settings of its own.
        Settings* settings = Settings::instance();
        settings->setLinearUnitPrecision(2);
        settings->setAngularUnitPrecision(1);
        settings->setAngularUnitType(3);
        m_controller.setInputType(inputType);
        m_controller.setMinimumValue(-100);
        m_controller.setMaximumValue(100);
        m_controller.setValue(value);
        m_shown.emplace(m_engine.load("import Tandolin\nItem { id: root; property UnitsInputController controller\n"
                                      "implicitWidth: 300; implicitHeight: 200\n"
                                      "signal entered; Keys.onReturnPressed: entered()\n"
                                      "Column { UnitField { objectName: 'field'; controller: root.controller }\n"
                                      "TextField { objectName: 'other' } } }",
                                      {{QStringLiteral("controller"), QVariant::fromValue(&m_controller)}}));
    }

    UnitsInputController& controller() { return m_controller; }
    Shown& shown() { return *m_shown; }
    QQuickItem* field() const { return m_shown->find("field"); }
    QString text() const { return field()->property("text").toString(); }
    QString error() const { return field()->property("error").toString(); }
    bool isMarked() const { return m_shown->find("errorFrame")->isVisible(); }
    void enter() { field()->forceActiveFocus(); }
    void leave() { m_shown->find("other")->forceActiveFocus(); }
    /// In the place of what is selected, which is all of it.
    void type(const char* text)
    {
        enter();
        QMetaObject::invokeMethod(field(), "selectAll");
        m_shown->press(Qt::Key_Delete);
        m_shown->type(text);
    }

private:
    PageEngine m_engine;
    UnitsInputController m_controller;
    std::optional<Shown> m_shown;
};
} // namespace

/// Fields for lengths and angles as a user works them, without a drawing: the texts are plain numbers.
class TestControlsUnits : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void typedTextsReachTheController_data()
    {
        const auto row = velmtest::columns<QString, double, QString>("typed", "value", "text");
        row("a number", "12.5", 12.5, "12.50");
        row("more digits than are shown", "-1.23456", -1.23456, "-1.23");
        row("blanks around it", "  7  ", 7, "7.00");
        row("an exponent", "1e1", 10, "10.00");
        row("a number with a unit", "3 mm", 3, "3.00");
        row("too large a number is clamped, and shown so", "1e300", 100, "100.00");
        row("too small a number is clamped", "-101", -100, "-100.00");
        row("the value it has, written otherwise", "5", 5, "5.00");
    }
    void typedTextsReachTheController()
    {
        QFETCH(QString, typed);
        QFETCH(double, value);
        QFETCH(QString, text);
        for (const bool byEnter : {true, false}) {
            ShownField field(5);
            QCOMPARE(field.text(), QStringLiteral("5.00"));
            field.type(qPrintable(typed));
            QCOMPARE(field.controller().getValue(), 5.0);
            if (byEnter)
                field.shown().press(Qt::Key_Return);
            else
                field.leave();
            QCOMPARE(field.controller().getValue(), value);
            QCOMPARE(field.text(), text);
            QVERIFY(!field.isMarked());
        }
    }

    void aTextThatIsNoValueStaysToBeMended_data()
    {
        const auto row = velmtest::columns<QString>("typed");
        row("nothing", QString());
        row("blanks", "   ");
        for (const char* text : {"-", "+", ".", "apples", "1,5", "1.2.3", "1e", "--1", "nan"})
            row(text, QString::fromLatin1(text));
        row("another script's digits", QString(QChar(0x0663)) + QChar(0x0664));
        row("a line within", "1\n2");
        row("400 letters", QString(400, u'x'));
        row("400 digits, which is no finite number", QString(400, u'9'));
    }
    void aTextThatIsNoValueStaysToBeMended()
    {
        QFETCH(QString, typed);
        ShownField field(5);
        QSignalSpy changed(&field.controller(), &UnitsInputController::valueChanged);
        field.type("");
        QGuiApplication::clipboard()->setText(typed);
        QMetaObject::invokeMethod(field.field(), "paste");
        const QString kept = field.text();
        QCOMPARE(kept.size(), typed.size());
        QVERIFY(!field.isMarked());
        field.shown().press(Qt::Key_Return);
        QVERIFY(field.isMarked());
        field.leave();
        field.enter();
        field.leave();
        QCOMPARE(field.text(), kept);
        QVERIFY(field.isMarked());
        QVERIFY(field.error().contains(QStringLiteral("5.00")));
        QVERIFY(field.error().size() < 80);
        QVERIFY(changed.isEmpty());
    }

    void aBadTextIsMended()
    {
        ShownField field(5);
        field.type("7x");
        field.shown().press(Qt::Key_Return);
        QVERIFY(field.isMarked());
        field.shown().press(Qt::Key_End);
        field.shown().press(Qt::Key_Backspace);
        // The mark goes with the first change.
        QVERIFY(!field.isMarked());
        field.shown().press(Qt::Key_Return);
        QCOMPARE(field.controller().getValue(), 7.0);
        QCOMPARE(field.text(), QStringLiteral("7.00"));
    }

    void passingThroughKeepsAllDigits()
    {
        ShownField field(1.23456789);
        QSignalSpy changed(&field.controller(), &UnitsInputController::valueChanged);
        field.enter();
        QCOMPARE(field.field()->property("selectedText").toString(), QStringLiteral("1.23"));
        field.shown().press(Qt::Key_Return);
        field.shown().press(Qt::Key_Tab);
        QVERIFY(field.shown().find("other")->hasActiveFocus());
        // Nor does a text that was changed and changed back.
        field.enter();
        field.shown().press(Qt::Key_End);
        field.shown().type("4");
        field.shown().press(Qt::Key_Backspace);
        field.leave();
        QVERIFY(changed.isEmpty());
        QCOMPARE(field.controller().getValue(), 1.23456789);
    }

    void committingTwiceChangesNothingMoreThanOnce()
    {
        ShownField field(5);
        QSignalSpy changed(&field.controller(), &UnitsInputController::valueChanged);
        field.type("2.0049");
        field.shown().press(Qt::Key_Return);
        QCOMPARE(changed.size(), 1);
        const QString text = field.text();
        field.shown().press(Qt::Key_Return);
        field.leave();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(field.text(), text);
        QCOMPARE(field.controller().getValue(), 2.0049);
    }

    void escapeBringsTheValueBack()
    {
        ShownField field(5);
        for (const char* typed : {"7", "x"}) {
            field.type(typed);
            if (*typed == 'x')
                field.shown().press(Qt::Key_Return);
            field.shown().press(Qt::Key_Escape);
            QCOMPARE(field.text(), QStringLiteral("5.00"));
            QVERIFY(!field.isMarked());
            field.leave();
            QCOMPARE(field.controller().getValue(), 5.0);
        }
    }

    void enterWithoutAChangeIsThePages()
    {
        ShownField field(5);
        QSignalSpy entered(field.shown().page(), SIGNAL(entered()));
        field.type("7");
        field.shown().press(Qt::Key_Return);
        field.type("x");
        field.shown().press(Qt::Key_Return);
        field.shown().press(Qt::Key_Return);
        QVERIFY(entered.isEmpty());
        field.shown().press(Qt::Key_Escape);
        field.shown().press(Qt::Key_Return);
        QCOMPARE(entered.size(), 1);
    }

    void theOwnersValueIsShown()
    {
        ShownField field(5);
        field.controller().setValue(6);
        QCOMPARE(field.text(), QStringLiteral("6.00"));
        // What is being typed stays, and wins.
        field.type("7");
        field.controller().setValue(8);
        QCOMPARE(field.text(), QStringLiteral("7"));
        field.leave();
        QCOMPARE(field.controller().getValue(), 7.0);
        // A bad text outlives the same value told again, not another one.
        field.type("x");
        field.leave();
        field.controller().setValue(7);
        QCOMPARE(field.text(), QStringLiteral("x"));
        field.controller().setValue(9);
        QCOMPARE(field.text(), QStringLiteral("9.00"));
        QVERIFY(!field.isMarked());
        // Another type of value begins anew.
        field.controller().setInputType(1);
        QCOMPARE(field.text(), QStringLiteral("0.0"));
    }

    void changedSettingsAreFeltAtOnce()
    {
        {
            const ShownField angle(1.23456, 1);
            QCOMPARE(angle.text(), QStringLiteral("1.2"));
            Settings::instance()->setAngularUnitPrecision(3);
            QCOMPARE(angle.text(), QStringLiteral("1.235"));
        }
        ShownField length(1.23456);
        Settings::instance()->setLinearUnitPrecision(4);
        QCOMPARE(length.text(), QStringLiteral("1.2346"));
        // A text that is being typed stays; that of the value is the one of Escape.
        length.type("x");
        Settings::instance()->setLinearUnitPrecision(1);
        QCOMPARE(length.text(), QStringLiteral("x"));
        length.shown().press(Qt::Key_Escape);
        QCOMPARE(length.text(), QStringLiteral("1.2"));
        QCOMPARE(length.controller().getValue(), 1.23456);
    }

    void theUnitStandsBesideTheValue()
    {
        {
            ShownField angle(1, 1);
            const QQuickItem* unit = angle.shown().find("unit");
            QCOMPARE(unit->property("text").toString(), QStringLiteral("r"));
            const double withUnit = angle.field()->property("rightPadding").toDouble();
            Settings::instance()->setAngularUnitType(2);
            QCOMPARE(unit->property("text").toString(), QStringLiteral("g"));
            angle.controller().setShowUnitLabel(false);
            QVERIFY(!unit->isVisible());
            QVERIFY(angle.field()->property("rightPadding").toDouble() < withUnit);
        }
        ShownField length(1);
        QVERIFY(!length.shown().find("unit")->isVisible());
        Settings::instance()->setLinearUnitString(QStringLiteral("mm"));
        QCOMPARE(length.shown().find("unit")->property("text").toString(), QStringLiteral("mm"));
    }

    void keysStepByOneUnit()
    {
        ShownField field(1.25);
        field.enter();
        field.shown().press(Qt::Key_Up);
        QCOMPARE(field.controller().getValue(), 2.25);
        QCOMPARE(field.text(), QStringLiteral("2.25"));
        field.shown().press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(field.controller().getValue(), -7.75);
        // From what is typed, and not beyond the bounds.
        field.type("95.5");
        field.shown().press(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(field.text(), QStringLiteral("100.00"));
        field.type("x");
        field.shown().press(Qt::Key_Up);
        QCOMPARE(field.text(), QStringLiteral("x"));
        QVERIFY(field.isMarked());
    }

    void aFieldMayBeWithoutAController()
    {
        PageEngine engine;
        Shown shown(engine.load("UnitField {}"));
        shown.type("5");
        shown.press(Qt::Key_Return);
        shown.press(Qt::Key_Up);
        shown.press(Qt::Key_Escape);
        QCOMPARE(shown.page()->property("text").toString(), QString());
    }

    void validatorsMendWhatIsFinished_data()
    {
        const auto row = velmtest::columns<QByteArray, QString, QString>("validator", "typed", "text");
        const char* integer = "FixingIntValidator { bottom: 4; top: 99 }";
        const char* integerOrEmpty = "FixingIntValidator { bottom: 4; top: 99; isEmptyAcceptable: true }";
        const char* real = "FixingDoubleValidator { bottom: 0.5; top: 2.5; decimals: 2 }";
        const char* realOrEmpty =
            "FixingDoubleValidator { bottom: 0.5; top: 2.5; decimals: 2; isEmptyAcceptable: true }";
        row("a good integer", integer, "50", "50");
        row("too small an integer", integer, "1", "4");
        row("no integer", integer, "", "4");
        row("no integer, which may be", integerOrEmpty, "", "");
        row("a letter is not taken", integer, "1x2", "12");
        row("too small a number", real, "0.1", "0.5");
        row("too large a number", real, "3", "2.5");
        row("no number", real, "", "0.5");
        row("no number, which may be", realOrEmpty, "", "");
        row("more decimals than there may be are not taken", realOrEmpty, "1.234", "1.23");
    }
    void validatorsMendWhatIsFinished()
    {
        QFETCH(QByteArray, validator);
        QFETCH(QString, typed);
        QFETCH(QString, text);
        for (const bool byEnter : {true, false}) {
            PageEngine engine;
            Shown shown(engine.load("import Tandolin\nItem { implicitWidth: 300; implicitHeight: 200\n"
                                    "Column { TextField { objectName: 'field'; text: '7'; validator: " +
                                    validator + " }\nTextField { objectName: 'other' } } }"));
            QQuickItem* field = shown.find("field");
            QSignalSpy finished(field, SIGNAL(editingFinished()));
            field->forceActiveFocus();
            shown.press(Qt::Key_Backspace);
            shown.type(qPrintable(typed));
            if (byEnter)
                shown.press(Qt::Key_Return);
            else
                shown.find("other")->forceActiveFocus();
            QCOMPARE(field->property("text").toString(), text);
            QCOMPARE(finished.size(), 1);
            // A second time there is nothing left to mend.
            field->forceActiveFocus();
            shown.press(Qt::Key_Return);
            QCOMPARE(field->property("text").toString(), text);
        }
    }
};

PAGE_TEST_MAIN(TestControlsUnits)
#include "tst_controlsunits.moc"
