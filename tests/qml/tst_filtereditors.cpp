#include "shownvalueeditor.h"
#include "support/table.h"

#include <QClipboard>

#include <cmath>

using namespace velm;
using velmtest::ComboHost;
using velmtest::ScopedLocale;
using velmtest::ShownValueEditor;
using Kind = velm::filter::EDefaultValueType;

/// The editors of a filter's numbers as a user works them, and what holds for the editors of all kinds.
class TestFilterEditors : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyKindHasAnEditor_data()
    {
        QTest::addColumn<int>("kind");
        for (int kind = 0; kind <= static_cast<int>(Kind::Transparency); ++kind)
            QTest::addRow("%s", qPrintable(filter::getValueTypeName(static_cast<Kind>(kind)))) << kind;
    }
    void everyKindHasAnEditor()
    {
        QFETCH(const int, kind);
        for (const bool hasHost : {true, false}) {
            ComboHost host;
            ShownValueEditor shown(static_cast<Kind>(kind), {}, hasHost ? &host : nullptr);
            QVERIFY(shown.editor()->implicitWidth() > 50);
            QVERIFY(shown.editor()->height() > 20);
            QVERIFY(shown.editor()->isAncestorOf(shown.shown().focusItem()));
            shown.setValue(shown.model().getDefaultValue(kind));
            shown.shown().window()->grabWindow();
            // Without a change there is nothing to tell, and Enter ends the editing.
            shown.shown().press(Qt::Key_Return);
            QCOMPARE(shown.acceptedCount, 1);
            QVERIFY(shown.told.isEmpty());
        }
    }

    void aValueOfAWrongTypeIsNotShown_data()
    {
        const auto row = velmtest::columns<Kind, QVariant>("kind", "value");
        row("a number for a text", Kind::String, 5);
        row("a list for a text", Kind::String, QStringList{QStringLiteral("a")});
        row("a text for several", Kind::StringMultiple, QStringLiteral("abc"));
        row("a number for several texts", Kind::StringMultiple, 5);
        row("an empty list of texts", Kind::StringMultiple, QStringList());
        row("a text for a number", Kind::Real, QStringLiteral("5"));
        row("a truth value for a number", Kind::Real, true);
        row("no finite number", Kind::Real, std::nan(""));
        row("a fraction for a whole number", Kind::Integer, 5.5);
        row("a whole number beyond int", Kind::Integer, 1e10);
        row("a list for a whole number", Kind::Integer, QVariantList{5});
        row("a transparency that there isn't", Kind::Transparency, 91);
    }
    void aValueOfAWrongTypeIsNotShown()
    {
        QFETCH(const Kind, kind);
        QFETCH(const QVariant, value);
        ShownValueEditor shown(kind, value);
        const char* field = kind == Kind::StringMultiple ? "field0" : "field";
        QCOMPARE(shown.text(field), QString());
        QVERIFY(!shown.find("field1"));
        shown.leave();
        QVERIFY(shown.told.isEmpty());
        shown.takeFocus();
        shown.shown().type("7");
        QCOMPARE(shown.last().toString(), kind == Kind::StringMultiple ? QString() : QStringLiteral("7"));
        QCOMPARE(shown.told.size(), 1);
    }

    void numbersAreToldInTheirType_data()
    {
        const auto row = velmtest::columns<Kind, QString, QVariant>("kind", "typed", "told");
        row("a real number", Kind::Real, "-12.5", -12.5);
        row("a whole number for a real one", Kind::Real, "12", 12.0);
        row("an exponent", Kind::Real, "1e-3", 0.001);
        row("blanks around it", Kind::Real, "  7 ", 7.0);
        row("many digits", Kind::Real, "0.1234567890123", 0.1234567890123);
        row("a whole number", Kind::Integer, "-12", -12);
        row("the smallest whole number", Kind::Integer, "-2147483648", std::numeric_limits<int>::min());
        row("a negative zero", Kind::Integer, "-0", 0);
        row("a whole number with a point", Kind::Integer, "5.", 5);
        row("the highest transparency", Kind::Transparency, "90", 90);
    }
    void numbersAreToldInTheirType()
    {
        QFETCH(const Kind, kind);
        QFETCH(const QString, typed);
        QFETCH(const QVariant, told);
        // What is typed stays as it is, also when the owner hands the value back.
        for (const bool takes : {true, false}) {
            ShownValueEditor shown(kind, kind == Kind::Real ? QVariant(3.25) : QVariant(3));
            shown.takes = takes;
            shown.shown().type(qPrintable(typed));
            QCOMPARE(shown.text(), typed);
            QCOMPARE(shown.last().typeId(), told.typeId());
            QCOMPARE(shown.last(), told);
            shown.shown().press(Qt::Key_Enter);
            QCOMPARE(shown.acceptedCount, 1);
            QVERIFY(!shown.isMarked());
            QCOMPARE(shown.last(), told);
        }
    }

    void whatIsNoNumberStaysMarked_data()
    {
        const auto row = velmtest::columns<Kind, QString, QString>("kind", "typed", "explained");
        for (const char* text : {"apples", "nan", "-inf", "infinity", "1,5", "1.2.3", "--1", "12 mm", "."})
            row(text, Kind::Real, QString::fromLatin1(text), "12.5");
        row("nothing", Kind::Real, QString(), "12.5");
        row("blanks", Kind::Real, QStringLiteral("  "), "12.5");
        row("400 digits, which is no finite number", Kind::Real, QString(400, u'9'), "12.5");
        row("a fraction", Kind::Integer, QStringLiteral("1.5"), "whole");
        row("one more than an int", Kind::Integer, QStringLiteral("2147483648"), "2147483647");
        row("letters for a whole number", Kind::Integer, QStringLiteral("x"), "12.");
        row("too high a transparency", Kind::Transparency, QStringLiteral("91"), "from 0 to 90");
        row("a negative transparency", Kind::Transparency, QStringLiteral("-1"), "from 0 to 90");
    }
    void whatIsNoNumberStaysMarked()
    {
        QFETCH(const Kind, kind);
        QFETCH(const QString, typed);
        QFETCH(const QString, explained);
        for (const bool byEnter : {true, false}) {
            ShownValueEditor shown(kind, kind == Kind::Real ? QVariant(3.25) : QVariant(3));
            shown.shown().press(Qt::Key_Delete);
            QGuiApplication::clipboard()->setText(typed);
            QMetaObject::invokeMethod(shown.find("field"), "paste");
            QVERIFY(!shown.isMarked());
            if (byEnter)
                shown.shown().press(Qt::Key_Return);
            else
                shown.leave();
            QVERIFY(shown.isMarked());
            QCOMPARE(shown.text(), typed);
            const QString error = shown.property("error", "field").toString();
            QVERIFY2(error.contains(explained), qPrintable(error));
            QVERIFY(error.size() < 80);
            QCOMPARE(shown.acceptedCount, 0);
            QVERIFY(shown.told.isEmpty());
        }
    }

    void aBadNumberIsMendedOrGivenUp()
    {
        ShownValueEditor shown(Kind::Real, 3.25);
        shown.shown().type("7x");
        shown.shown().press(Qt::Key_Return);
        QVERIFY(shown.isMarked());
        // The mark goes with the first change.
        shown.shown().press(Qt::Key_End);
        shown.shown().press(Qt::Key_Backspace);
        QVERIFY(!shown.isMarked());
        QCOMPARE(shown.last(), QVariant(7.0));
        // Escape gives up what can't be read, and is the page's otherwise.
        shown.shown().type("y");
        shown.shown().press(Qt::Key_Escape);
        QCOMPARE(shown.text(), QStringLiteral("7"));
        QCOMPARE(shown.escaped(), 0);
        shown.shown().press(Qt::Key_Escape);
        QCOMPARE(shown.escaped(), 1);
    }

    void anUntouchedNumberKeepsAllDigits()
    {
        for (const double value : {1234567.123456789, 1e-7, -0.1, 100000.0, 1e300}) {
            ShownValueEditor shown(Kind::Real, value);
            QCOMPARE(shown.text().toDouble(), value);
            shown.leave();
            QVERIFY(!shown.isMarked());
            shown.takeFocus();
            shown.shown().press(Qt::Key_Return);
            QVERIFY(shown.told.isEmpty());
        }
        ShownValueEditor shown(Kind::Real, 100000);
        QCOMPARE(shown.text(), QStringLiteral("100000"));
        QCOMPARE(shown.property("text", "unit").toString(), QStringLiteral("mm"));
        shown.model().unit = QStringLiteral("inch");
        shown.model().tellOfChange();
        QCOMPARE(shown.property("text", "unit").toString(), QStringLiteral("inch"));
    }

    void numbersAreWrittenAsTheLocaleHasThem()
    {
        const ScopedLocale scope(QLocale(QLocale::German));
        ShownValueEditor shown(Kind::Real, 1234567.5);
        QCOMPARE(shown.text(), QStringLiteral("1234567,5"));
        shown.shown().type("2,75");
        QCOMPARE(shown.last(), QVariant(2.75));
        shown.shown().press(Qt::Key_Delete);
        shown.shown().type("2.75");
        shown.shown().press(Qt::Key_Return);
        QVERIFY(shown.isMarked());
    }

    void keysStepANumber()
    {
        ShownValueEditor shown(Kind::Transparency, 85);
        shown.shown().press(Qt::Key_Down);
        QCOMPARE(shown.last(), QVariant(84));
        shown.shown().press(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(shown.last(), QVariant(90));
        QCOMPARE(shown.text(), QStringLiteral("90"));
        // At the end there is nothing to tell.
        const auto told = shown.told.size();
        shown.shown().press(Qt::Key_Up);
        QCOMPARE(shown.told.size(), told);
        shown.shown().type("x");
        shown.shown().press(Qt::Key_Up);
        QCOMPARE(shown.text(), QStringLiteral("x"));
        QCOMPARE(shown.told.size(), told);
    }

    void theSliderSetsATransparency()
    {
        ShownValueEditor shown(Kind::Transparency, 30);
        QQuickItem* slider = shown.find("slider");
        QCOMPARE(slider->property("value").toInt(), 30);
        shown.shown().press(Qt::Key_Tab);
        QVERIFY(slider->hasActiveFocus());
        shown.shown().press(Qt::Key_Right);
        QCOMPARE(shown.last(), QVariant(31));
        QCOMPARE(shown.last().typeId(), static_cast<int>(QMetaType::Int));
        QCOMPARE(shown.text(), QStringLiteral("31"));
        shown.shown().click(slider);
        QVERIFY(std::abs(shown.last().toInt() - 45) < 3);
        QCOMPARE(shown.text(), shown.last().toString());
        shown.setValue(10);
        QCOMPARE(slider->property("value").toInt(), 10);
    }

    void theOwnersValueIsShown()
    {
        {
            ShownValueEditor text(Kind::String, QStringLiteral("a"));
            text.shown().type("b");
            text.setValue(QStringLiteral("c"));
            QCOMPARE(text.text(), QStringLiteral("c"));
        }
        {
            ShownValueEditor texts(Kind::StringMultiple, QStringList{QStringLiteral("a")});
            texts.shown().type("b");
            texts.setValue(QStringList{QStringLiteral("c"), QStringLiteral("d")});
            QCOMPARE(texts.text("field0") + texts.text("field1"), QStringLiteral("cd"));
        }
        ShownValueEditor number(Kind::Real, 1.5);
        number.shown().type("x");
        number.setValue(2.5);
        QCOMPARE(number.text(), QStringLiteral("2.5"));
        QVERIFY(!number.isMarked());
    }
};

PAGE_TEST_MAIN(TestFilterEditors)
#include "tst_filtereditors.moc"
