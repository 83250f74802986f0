#include "shownpage.h"

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
    UnitsInputController m_controller;
    PageEngine m_engine;
    std::optional<Shown> m_shown;
};
} // namespace

/// Fields for lengths and angles as a user works them, without a drawing: the texts are plain numbers.
class TestControlsUnits : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void typedTextsReachTheController_data();
    void typedTextsReachTheController();
    void aTextThatIsNoValueStaysToBeMended_data();
    void aTextThatIsNoValueStaysToBeMended();
    void aBadTextIsMended();
    void passingThroughKeepsAllDigits();
    void committingTwiceChangesNothingMoreThanOnce();
    void escapeBringsTheValueBack();
    void enterWithoutAChangeIsThePages();
    void theOwnersValueIsShown();
    void changedSettingsAreFeltAtOnce();
    void theUnitStandsBesideTheValue();
    void keysStepByOneUnit();
    void aFieldMayBeWithoutAController();
    void validatorsMendWhatIsFinished_data();
    void validatorsMendWhatIsFinished();
};

void TestControlsUnits::init()
{
    Settings* settings = Settings::instance();
    settings->setLinearUnitPrecision(2);
    settings->setAngularUnitPrecision(1);
    settings->setLinearUnitString({});
    settings->setAngularUnitType(3);
}

void TestControlsUnits::typedTextsReachTheController_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* typed, double value, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(typed) << value << QString::fromLatin1(text);
    };
    row("a number", "12.5", 12.5, "12.50");
    row("more digits than are shown", "-1.23456", -1.23456, "-1.23");
    row("blanks around it", "  7  ", 7, "7.00");
    row("an exponent", "1e1", 10, "10.00");
    row("a number with a unit", "3 mm", 3, "3.00");
    row("too large a number is clamped, and shown so", "1e300", 100, "100.00");
    row("too small a number is clamped", "-101", -100, "-100.00");
    row("the value it has, written otherwise", "5", 5, "5.00");
}

void TestControlsUnits::typedTextsReachTheController()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, text);
    for (const bool byEnter : {true, false}) {
        ShownField field(5);
        QVERIFY(field.shown().isReady());
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

void TestControlsUnits::aTextThatIsNoValueStaysToBeMended_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("nothing") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
    for (const char* text : {"-", "+", ".", "apples", "1,5", "1.2.3", "1e", "--1", "nan"})
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("another script's digits") << QString(QChar(0x0663)) + QChar(0x0664);
    QTest::newRow("a line within") << QStringLiteral("1\n2");
    QTest::newRow("400 letters") << QString(400, u'x');
    QTest::newRow("400 digits, which is no finite number") << QString(400, u'9');
}

void TestControlsUnits::aTextThatIsNoValueStaysToBeMended()
{
    QFETCH(QString, typed);
    ShownField field(5);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::aBadTextIsMended()
{
    ShownField field(5);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::passingThroughKeepsAllDigits()
{
    ShownField field(1.23456789);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::committingTwiceChangesNothingMoreThanOnce()
{
    ShownField field(5);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::escapeBringsTheValueBack()
{
    ShownField field(5);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::enterWithoutAChangeIsThePages()
{
    ShownField field(5);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::theOwnersValueIsShown()
{
    ShownField field(5);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::changedSettingsAreFeltAtOnce()
{
    Settings* settings = Settings::instance();
    ShownField length(1.23456);
    ShownField angle(1.23456, 1);
    QVERIFY(length.shown().isReady());
    settings->setLinearUnitPrecision(4);
    QCOMPARE(length.text(), QStringLiteral("1.2346"));
    settings->setAngularUnitPrecision(3);
    QCOMPARE(angle.text(), QStringLiteral("1.235"));
    // A text that is being typed stays; that of the value is the one of Escape.
    length.shown().window()->requestActivate();
    length.type("x");
    settings->setLinearUnitPrecision(1);
    QCOMPARE(length.text(), QStringLiteral("x"));
    length.shown().press(Qt::Key_Escape);
    QCOMPARE(length.text(), QStringLiteral("1.2"));
    QCOMPARE(length.controller().getValue(), 1.23456);
}

void TestControlsUnits::theUnitStandsBesideTheValue()
{
    Settings* settings = Settings::instance();
    ShownField angle(1, 1);
    ShownField length(1);
    QVERIFY(length.shown().isReady());
    const QQuickItem* unit = angle.shown().find("unit");
    QCOMPARE(unit->property("text").toString(), QStringLiteral("r"));
    const double withUnit = angle.field()->property("rightPadding").toDouble();
    settings->setAngularUnitType(2);
    QCOMPARE(unit->property("text").toString(), QStringLiteral("g"));
    angle.controller().setShowUnitLabel(false);
    QVERIFY(!unit->isVisible());
    QVERIFY(angle.field()->property("rightPadding").toDouble() < withUnit);
    QVERIFY(!length.shown().find("unit")->isVisible());
    settings->setLinearUnitString(QStringLiteral("mm"));
    QCOMPARE(length.shown().find("unit")->property("text").toString(), QStringLiteral("mm"));
}

void TestControlsUnits::keysStepByOneUnit()
{
    ShownField field(1.25);
    QVERIFY(field.shown().isReady());
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

void TestControlsUnits::aFieldMayBeWithoutAController()
{
    PageEngine engine;
    Shown shown(engine.load("UnitField {}"));
    QVERIFY(shown.isReady());
    shown.type("5");
    shown.press(Qt::Key_Return);
    shown.press(Qt::Key_Up);
    shown.press(Qt::Key_Escape);
    QCOMPARE(shown.page()->property("text").toString(), QString());
}

void TestControlsUnits::validatorsMendWhatIsFinished_data()
{
    QTest::addColumn<QByteArray>("validator");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* validator, const char* typed, const char* text) {
        QTest::newRow(name) << QByteArray(validator) << QString::fromLatin1(typed) << QString::fromLatin1(text);
    };
    const char* integer = "FixingIntValidator { bottom: 4; top: 99 }";
    const char* integerOrEmpty = "FixingIntValidator { bottom: 4; top: 99; isEmptyAcceptable: true }";
    const char* real = "FixingDoubleValidator { bottom: 0.5; top: 2.5; decimals: 2 }";
    const char* realOrEmpty = "FixingDoubleValidator { bottom: 0.5; top: 2.5; decimals: 2; isEmptyAcceptable: true }";
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

void TestControlsUnits::validatorsMendWhatIsFinished()
{
    QFETCH(QByteArray, validator);
    QFETCH(QString, typed);
    QFETCH(QString, text);
    for (const bool byEnter : {true, false}) {
        PageEngine engine;
        Shown shown(engine.load("import Tandolin\nItem { implicitWidth: 300; implicitHeight: 200\n"
                                "Column { TextField { objectName: 'field'; text: '7'; validator: " +
                                validator + " }\nTextField { objectName: 'other' } } }"));
        QVERIFY(shown.isReady());
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

int main(int argc, char** argv)
{
    return velmtest::runPageTest<TestControlsUnits>(argc, argv);
}

#include "tst_controlsunits.moc"
