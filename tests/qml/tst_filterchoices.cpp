#include "shownvalueeditor.h"
#include "support/table.h"
#include "velm/filter/filtertagsmodel.h"

using namespace velm;
using velmtest::ComboHost;
using velmtest::ShownValueEditor;
using Kind = velm::filter::EDefaultValueType;

namespace {
QVariantList rows(std::initializer_list<int> numbers)
{
    return QVariantList(numbers.begin(), numbers.end());
}
} // namespace

/// The editors of a filter's choices as a user works them: one or several of a list, colours and lineweights.
class TestFilterChoices : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void oneValueIsChosen()
    {
        ShownValueEditor shown(Kind::Enum, 2);
        QCOMPARE(shown.property("displayText", "combo").toString(), QStringLiteral("Beam"));
        shown.shown().press(Qt::Key_Up);
        QCOMPARE(shown.last(), QVariant(1));
        QCOMPARE(shown.last().typeId(), static_cast<int>(QMetaType::Int));
        QCOMPARE(shown.property("displayText", "combo").toString(), QStringLiteral("Door & frame"));
        shown.shown().press(Qt::Key_W);
        QCOMPARE(shown.last(), QVariant(0));
        // Enter chooses in the open list, and only then ends the editing.
        shown.shown().click(shown.find("combo"));
        shown.shown().press(Qt::Key_Down);
        shown.shown().press(Qt::Key_Return);
        QCOMPARE(shown.last(), QVariant(1));
        QCOMPARE(shown.acceptedCount, 0);
        shown.shown().press(Qt::Key_Enter);
        QCOMPARE(shown.acceptedCount, 1);
        // What the owner sets is shown after all that, too.
        shown.setValue(2);
        QCOMPARE(shown.property("displayText", "combo").toString(), QStringLiteral("Beam"));
        shown.model().values.removeLast();
        shown.model().tellOfChange();
        QCOMPARE(shown.property("displayText", "combo").toString(), QString());
    }

    void trueAndFalseAreChosen()
    {
        ShownValueEditor shown(Kind::Boolean, true);
        const auto checked = [&] {
            return QPair(shown.property("checked", "choice0").toBool(), shown.property("checked", "choice1").toBool());
        };
        QCOMPARE(checked(), QPair(false, true));
        QVERIFY(shown.find("choice1")->hasActiveFocus());
        shown.shown().click(shown.find("choice0"));
        QCOMPARE(shown.last(), QVariant(false));
        QCOMPARE(shown.last().typeId(), static_cast<int>(QMetaType::Bool));
        QCOMPARE(checked(), QPair(true, false));
        shown.shown().press(Qt::Key_Right);
        QCOMPARE(shown.last(), QVariant(true));
        QCOMPARE(checked(), QPair(false, true));
        QVERIFY(shown.find("choice1")->hasActiveFocus());
        shown.shown().press(Qt::Key_Tab, Qt::ShiftModifier);
        shown.shown().press(Qt::Key_Space);
        QCOMPARE(shown.last(), QVariant(false));
        shown.shown().press(Qt::Key_Return);
        QCOMPARE(shown.acceptedCount, 1);
        shown.setValue(true);
        QCOMPARE(checked(), QPair(false, true));
        // A value of a wrong type is neither.
        shown.setValue(1);
        QCOMPARE(checked(), QPair(false, false));
    }

    void severalValuesAreChecked()
    {
        ShownValueEditor shown(Kind::EnumMultiple, rows({2}));
        QCOMPARE(shown.checks(), QStringList({"Wall", "Door & frame", "x Beam"}));
        shown.clickCheck(0);
        QCOMPARE(shown.last(), QVariant(rows({0, 2})));
        QCOMPARE(shown.last().toList().first().typeId(), static_cast<int>(QMetaType::Int));
        QCOMPARE(shown.checks(), QStringList({"x Wall", "Door & frame", "x Beam"}));
        shown.clickCheck(2);
        QCOMPARE(shown.last(), QVariant(rows({0})));
        // The click took the row, from which the keys go on.
        shown.shown().press(Qt::Key_Up);
        shown.shown().press(Qt::Key_Space);
        QCOMPARE(shown.last(), QVariant(rows({0, 1})));
        shown.shown().type("w ");
        QCOMPARE(shown.last(), QVariant(rows({1})));
        QVERIFY(!shown.find("hint")->isVisible());
        shown.clickCheck(1);
        QCOMPARE(shown.last(), QVariant(rows({})));
        QVERIFY(shown.find("hint")->isVisible());
        shown.shown().press(Qt::Key_Return);
        QCOMPARE(shown.acceptedCount, 1);
        shown.setValue(rows({0}));
        QCOMPARE(shown.checks(), QStringList({"x Wall", "Door & frame", "Beam"}));
    }

    void whatIsNoRowIsNotShown_data()
    {
        const auto row = velmtest::columns<Kind, QVariant, QVariant>("kind", "value", "told");
        row("rows that aren't there", Kind::EnumMultiple, rows({-1, 99, 3}), rows({0}));
        row("a row twice, and not in order", Kind::EnumMultiple, rows({2, 1, 2}), rows({0, 1, 2}));
        row("items of wrong types", Kind::EnumMultiple, QVariantList({QStringLiteral("1"), 1.5, true, QVariant(), 2}),
            rows({0, 2}));
        row("a text in place of a list", Kind::EnumMultiple, QStringLiteral("12"), rows({0}));
        row("a number in place of a list", Kind::Color, 1, rows({0}));
        row("colours that aren't there", Kind::Color, rows({9, 4, -2}), rows({0, 4}));
        row("a row beyond the list", Kind::Enum, 3, 0);
        row("a row before the list", Kind::Enum, -5, 0);
        row("a text in place of a row", Kind::Enum, QStringLiteral("Wall"), 0);
        row("a lineweight that isn't there", Kind::LineWeight, 99, 0);
        row("no lineweight", Kind::LineWeight, {}, 0);
    }
    void whatIsNoRowIsNotShown()
    {
        QFETCH(const Kind, kind);
        QFETCH(const QVariant, value);
        QFETCH(const QVariant, told);
        ComboHost host;
        ShownValueEditor shown(kind, value, &host);
        shown.shown().window()->grabWindow();
        QVERIFY(shown.told.isEmpty());
        // The first row is what a key comes to from none.
        if (shown.find("combo"))
            QCOMPARE(shown.property("currentIndex", "combo").toInt(), -1);
        shown.shown().press(shown.find("combo") ? Qt::Key_Down : Qt::Key_Space);
        QCOMPARE(shown.last(), told);
    }

    void changedChoicesAreShown()
    {
        ShownValueEditor shown(Kind::EnumMultiple, rows({0}));
        shown.model().values = QStringList{QStringLiteral("Arc")};
        shown.model().tellOfChange();
        QCOMPARE(shown.checks(), QStringList{"x Arc"});
        shown.model().values.clear();
        shown.model().tellOfChange();
        QCOMPARE(shown.checks(), QStringList());
        QVERIFY(shown.find("nothing")->isVisible());
        shown.shown().press(Qt::Key_Space);
        QVERIFY(shown.told.isEmpty());
    }

    void manyChoicesAreSearched()
    {
        ShownValueEditor shown(Kind::EnumMultiple, rows({0}));
        QVERIFY(!shown.find("search")->isVisible());
        for (int row = 0; row < 30; ++row)
            shown.model().values += QStringLiteral("Type %1").arg(row);
        shown.model().tellOfChange();
        QVERIFY(shown.find("search")->isVisible());
        shown.shown().click(shown.find("search"));
        shown.shown().type("E 2");
        QCOMPARE(shown.checks().mid(0, 2), QStringList({"Type 2", "Type 20"}));
        shown.shown().press(Qt::Key_Down);
        shown.shown().press(Qt::Key_Down);
        shown.shown().press(Qt::Key_Space);
        QCOMPARE(shown.last(), QVariant(rows({0, 23})));
        QCOMPARE(shown.checks().mid(0, 2), QStringList({"Type 2", "x Type 20"}));
        shown.shown().click(shown.find("search"));
        shown.shown().type("x");
        QVERIFY(shown.find("nothing")->isVisible());
        QCOMPARE(shown.checks(), QStringList());
        shown.shown().press(Qt::Key_Escape);
        QCOMPARE(shown.checks().first(), QStringLiteral("x Wall"));
        QCOMPARE(shown.escaped(), 0);
    }

    void lineWeightsAreChosenWithoutTheModelsOwnRow()
    {
        ComboHost host;
        ShownValueEditor shown(Kind::LineWeight, 1, &host);
        auto* model = qobject_cast<LineWeightModel*>(shown.model().getLineWeightModel());
        QVERIFY(model->setCurrentIndex(4));
        QCOMPARE(shown.property("currentName", "combo").toString(), QStringLiteral("0 mm"));
        shown.shown().press(Qt::Key_Down);
        QCOMPARE(shown.last(), QVariant(2));
        QCOMPARE(shown.last().typeId(), static_cast<int>(QMetaType::Int));
        QCOMPARE(shown.property("currentName", "combo").toString(), QStringLiteral("25 mm"));
        shown.shown().press(Qt::Key_F4);
        shown.shown().press(Qt::Key_Home);
        shown.shown().press(Qt::Key_Return);
        QCOMPARE(shown.last(), QVariant(0));
        QCOMPARE(shown.acceptedCount, 0);
        shown.shown().press(Qt::Key_Return);
        QCOMPARE(shown.acceptedCount, 1);
        shown.setValue(5);
        QCOMPARE(shown.property("currentName", "combo").toString(), QStringLiteral("100 mm"));
        QCOMPARE(model->getCurrentIndex(), 4);
    }

    void coloursAreCheckedByTheirNumber()
    {
        ComboHost host;
        ShownValueEditor shown(Kind::Color, rows({2}), &host);
        const QStringList names{"ByLayer", "ByBlock", "x Red", "Yellow", "Green", "Cyan", "Blue", "Magenta"};
        QCOMPARE(shown.checks().mid(0, 8), names);
        shown.clickCheck(4);
        QCOMPARE(shown.last(), QVariant(rows({2, 4})));
        shown.shown().press(Qt::Key_End);
        shown.shown().press(Qt::Key_Space);
        QCOMPARE(shown.last(), QVariant(rows({2, 4, 8})));
        QCOMPARE(shown.model().valueToString(static_cast<int>(Kind::Color), shown.last(), true),
                 QStringLiteral("Red\nGreen\nWhite"));
    }

    void anotherColourIsAdded()
    {
        ComboHost host;
        ShownValueEditor shown(Kind::Color, rows({2}), &host);
        shown.takes = false;
        // None, one that isn't listed, then one that is, and is checked already.
        host.dialogs.colors = {std::nullopt, OdCmColor::fromRGB(10, 20, 30), OdCmColor::fromIndex(1)};
        shown.shown().click(shown.find("load"));
        QTRY_COMPARE(host.dialogs.log.size(), 1);
        QVERIFY(shown.told.isEmpty());
        shown.shown().click(shown.find("load"));
        QTRY_COMPARE(host.dialogs.log.size(), 2);
        QCOMPARE(shown.last(), QVariant(rows({2, 9})));
        QVERIFY(shown.checks().contains(QStringLiteral("x Picked")));
        shown.shown().press(Qt::Key_Tab);
        shown.find("load")->forceActiveFocus();
        shown.shown().press(Qt::Key_Return);
        QTRY_COMPARE(host.dialogs.log.size(), 3);
        QCOMPARE(shown.told.size(), 1);
        QCOMPARE(shown.acceptedCount, 0);
    }

    void aListFromAPageStaysAList()
    {
        velmtest::PageEngine engine;
        velmtest::EveryKind properties;
        FilterTagsModel tags(properties, nullptr);
        const int enums = static_cast<int>(Kind::EnumMultiple);
        const std::unique_ptr<QObject> page(engine.load(
            "Item { property var tags; property int enums; Component.onCompleted: { tags.addTag(0, enums, 0, [2, 1]);\n"
            "tags.addTag(0, 1, 0, ['a']); tags.editTag(0, 1, 1, 0, ['a', 'b']) } }",
            {{QStringLiteral("tags"), QVariant::fromValue<QObject*>(&tags)}, {QStringLiteral("enums"), enums}}));
        QVERIFY(page);
        const auto filter = tags.getFilter();
        QCOMPARE(filter[0][0].value.typeId(), static_cast<int>(QMetaType::QVariantList));
        QCOMPARE(filter[0][0].value.toList(), rows({2, 1}));
        QCOMPARE(filter[0][1].value, QVariant(QStringList({"a", "b"})));
    }
};

PAGE_TEST_MAIN(TestFilterChoices)
#include "tst_filterchoices.moc"
