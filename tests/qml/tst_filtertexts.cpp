#include "shownvalueeditor.h"
#include "support/table.h"

using velmtest::ShownValueEditor;
using Kind = velm::filter::EDefaultValueType;

/// The editors of a filter's texts as a user works them.
class TestFilterTexts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTextIsToldAsItStands()
    {
        ShownValueEditor shown(Kind::String, QStringLiteral("  old"));
        QCOMPARE(shown.text(), QStringLiteral("  old"));
        shown.shown().type("  a, b ");
        QCOMPARE(shown.last(), QVariant(QStringLiteral("  a, b ")));
        QCOMPARE(shown.last().typeId(), static_cast<int>(QMetaType::QString));
        QCOMPARE(shown.told.first(), QVariant(QStringLiteral(" ")));
        shown.shown().press(Qt::Key_A, Qt::ControlModifier);
        shown.shown().press(Qt::Key_Delete);
        QCOMPARE(shown.last(), QVariant(QString()));
        QCOMPARE(shown.last().typeId(), static_cast<int>(QMetaType::QString));
    }

    void textsAreAddedEditedAndRemoved()
    {
        ShownValueEditor shown(Kind::StringMultiple, QStringList{QStringLiteral("A, B")});
        shown.model().values.clear();
        shown.model().tellOfChange();
        QVERIFY(!shown.find("suggest")->isVisible());
        QVERIFY(!shown.find("remove0")->isVisible());
        shown.shown().press(Qt::Key_End);
        shown.shown().type("*");
        QCOMPARE(shown.last(), QVariant(QVariantList{QStringLiteral("A, B*")}));
        shown.shown().click(shown.find("add"));
        QVERIFY(shown.find("field1")->hasActiveFocus());
        shown.shown().type(" c?");
        shown.shown().press(Qt::Key_Tab);
        shown.shown().press(Qt::Key_Tab);
        shown.shown().press(Qt::Key_Return);
        shown.shown().type("d");
        QCOMPARE(shown.last(),
                 QVariant(QVariantList{QStringLiteral("A, B*"), QStringLiteral(" c?"), QStringLiteral("d")}));
        QCOMPARE(shown.acceptedCount, 0);
        shown.shown().click(shown.find("remove1"));
        QCOMPARE(shown.last(), QVariant(QVariantList{QStringLiteral("A, B*"), QStringLiteral("d")}));
        QCOMPARE(shown.text("field1"), QStringLiteral("d"));
        QVERIFY(shown.find("field1")->hasActiveFocus());
        shown.shown().click(shown.find("remove1"));
        QCOMPARE(shown.last(), QVariant(QVariantList{QStringLiteral("A, B*")}));
        QVERIFY(shown.find("field0")->hasActiveFocus());
    }

    void aLineBreakStaysInOneText()
    {
        const QStringList texts{QStringLiteral("one\ntwo"), QString()};
        ShownValueEditor shown(Kind::StringMultiple, texts);
        QVERIFY(!shown.find("field2"));
        shown.shown().press(Qt::Key_End);
        shown.shown().type("!");
        QCOMPARE(shown.last(), QVariant(QVariantList{QStringLiteral("one\ntwo!"), QString()}));
    }

    void suggestionsAreChosen_data()
    {
        const auto row = velmtest::columns<QString, QList<int>, int, QString>("typed", "keys", "listed", "text");
        // Wall, Door & frame, Beam
        const QList<int> none;
        row("Down shows all and goes on from the text", "", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, 3, "Wall");
        row("Up stops at the first", "", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Enter}, 3, "Wall");
        row("typed letters are found within", "RA", {Qt::Key_Down, Qt::Key_Return}, 1, "Door & frame");
        row("Enter alone keeps what is typed", "Wa", {Qt::Key_Return}, 1, "Wa");
        row("a pattern has no suggestion", "W*", none, 0, "W*");
    }
    void suggestionsAreChosen()
    {
        QFETCH(const QString, typed);
        QFETCH(const QList<int>, keys);
        QFETCH(const int, listed);
        QFETCH(const QString, text);
        ShownValueEditor shown(Kind::StringMultiple, QStringList{QString()});
        shown.shown().type(qPrintable(typed));
        int count = shown.suggestionCount();
        for (const int key : keys) {
            shown.shown().press(Qt::Key(key));
            count = std::max(count, shown.suggestionCount());
        }
        QCOMPARE(count, listed);
        QCOMPARE(shown.suggestionCount(), 0);
        QCOMPARE(shown.text("field0"), text);
        QCOMPARE(shown.last(), QVariant(QVariantList{text}));

        // And by the mouse, in the place of any text.
        shown.shown().click(shown.find("suggest"));
        QTRY_COMPARE(shown.suggestionCount(), 3);
        shown.clickSuggestion(1);
        QTRY_COMPARE(shown.suggestionCount(), 0);
        QCOMPARE(shown.last(), QVariant(QVariantList{QStringLiteral("Door & frame")}));
        QVERIFY(shown.find("field0")->hasActiveFocus());
        shown.shown().click(shown.find("suggest"));
        QTRY_COMPARE(shown.suggestionCount(), 3);
        shown.shown().click(shown.find("suggest"));
        QTRY_COMPARE(shown.suggestionCount(), 0);
    }

    void escapeClosesTheSuggestionsFirst()
    {
        ShownValueEditor shown(Kind::StringMultiple, QStringList{QStringLiteral("Beam")});
        shown.shown().press(Qt::Key_Down);
        QCOMPARE(shown.suggestionCount(), 3);
        shown.shown().press(Qt::Key_Escape);
        QTRY_COMPARE(shown.suggestionCount(), 0);
        QCOMPARE(shown.escaped(), 0);
        shown.shown().press(Qt::Key_Escape);
        QCOMPARE(shown.escaped(), 1);
        QVERIFY(shown.told.isEmpty());
        shown.shown().press(Qt::Key_Down);
        shown.leave();
        QTRY_COMPARE(shown.suggestionCount(), 0);
    }
};

PAGE_TEST_MAIN(TestFilterTexts)
#include "tst_filtertexts.moc"
