#include "shownfilter.h"
#include "support/table.h"
#include "velm/filter/filteroperatorsmodel.h"

#include <QSignalSpy>

using namespace velm;
using velmtest::FilterProperties;
using velmtest::Shown;
using velmtest::ShownFilter;

namespace {
using Operator = FilterOperatorsModel::Operator;

/// A filter "Layer is Walls and Length > 10 mm or Type is Arc".
class ThreeConditions : public ShownFilter
{
public:
    ThreeConditions()
    {
        tags.setFilter({{{FilterProperties::Layer, Operator::Is, QStringList{"Walls"}},
                         {FilterProperties::Length, Operator::Greater, 10.0}},
                        {{FilterProperties::Type, Operator::Is, 2}}});
    }
    bool isEdited() const { return isOpen("tagEditor"); }
    QString focus() { return shown().focusItem() ? shown().focusItem()->objectName() : QString(); }
};
const QString threeConditions = QStringLiteral("Layer is Walls and Length > 10 mm or Type is Arc");
} // namespace

/// The panel of a filter as a user works it.
class TestPropertyFilter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anEmptyFilterInvitesTheFirstCondition()
    {
        ThreeConditions filter;
        QVERIFY(!filter.item("emptyFilter")->isVisible());
        QVERIFY(!filter.item("saveFilter")->isVisible());
        filter.page()->property("filter").value<QObject*>()->setProperty("status", "12 entities match");
        QVERIFY(filter.item("filterStatus")->isVisible());
        filter.click("clearFilter");
        QCOMPARE(filter.tags.getFilter(), FilterData(1));
        QVERIFY(filter.item("emptyFilter")->isVisible());
        QVERIFY(!filter.item("clearFilter")->isEnabled());
        QVERIFY(!filter.item("addAlternative")->isVisible());
        QVERIFY(!filter.item("removeConjunction0")->isVisible());
        // Alternatives without conditions can be cleared, too.
        filter.tags.addConjunction();
        QVERIFY(filter.item("clearFilter")->isEnabled());
        filter.click("removeConjunction0");
        QCOMPARE(filter.tags.rowCount(), 1);
        QVERIFY(!filter.item("clearFilter")->isEnabled());
    }

    void aFilterIsBuiltByTheKeyboard()
    {
        ShownFilter filter;
        filter.shown().press(Qt::Key_Tab);
        QCOMPARE(filter.shown().focusItem()->objectName(), "addCondition0");
        filter.shown().press(Qt::Key_Return);
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        filter.shown().type("length");
        filter.shown().press(Qt::Key_Return);
        QTRY_VERIFY(filter.isOpen("tagEditor"));
        // The value is at hand, and the operator before it.
        filter.shown().type("12.5");
        QCOMPARE(filter.text(), "Length = 12.5 mm");
        filter.shown().press(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(filter.shown().focusItem()->objectName(), "operatorCombo");
        filter.shown().press(Qt::Key_Down);
        filter.shown().press(Qt::Key_Down);
        QCOMPARE(filter.text(), "Length > 12.5 mm");
        filter.shown().press(Qt::Key_Tab);
        filter.shown().press(Qt::Key_Return);
        QTRY_VERIFY(!filter.isOpen("tagEditor"));
        QTRY_COMPARE(filter.shown().focusItem()->objectName(), "chip0_0");
        QCOMPARE(filter.tags.getFilter(), FilterData({{{FilterProperties::Length, Operator::Greater, 12.5}}}));
        // From the chip on: add, duplicate, remove, and the alternative.
        for (int step = 0; step < 4; ++step)
            filter.shown().press(Qt::Key_Tab);
        QCOMPARE(filter.shown().focusItem()->objectName(), "addAlternative");
        filter.shown().press(Qt::Key_Space);
        QCOMPARE(filter.tags.rowCount(), 2);
        QCOMPARE(filter.text(), "Length > 12.5 mm or ");
    }

    void theOperatorIsChosenByTheMouse()
    {
        ThreeConditions filter;
        filter.click("chip0_1");
        QTRY_VERIFY(filter.isEdited());
        QCOMPARE(filter.item("tagProperty")->property("text").toString(), "Geometry > Length [mm]");
        filter.click("operatorCombo");
        filter.clickRow({}, "less or equal");
        QTRY_COMPARE(filter.text(), "Layer is Walls and Length ≤ 10 mm or Type is Arc");
        QVERIFY(filter.isEdited());
        // The combo shows what the model says, whoever changed it.
        filter.tags.editTag(0, 1, FilterProperties::Length, Operator::NotEqual, QVariant());
        QCOMPARE(filter.item("operatorCombo")->property("displayText").toString(), "is not");
        filter.click("finishTag");
        QTRY_VERIFY(!filter.isEdited());
        filter.click("chip1_0");
        QTRY_VERIFY(filter.isEdited());
        QCOMPARE(filter.item("operatorCombo")->property("count").toInt(), 2);
        QCOMPARE(filter.item("operatorCombo")->property("displayText").toString(), "is");
    }

    void aChangeOfTheValueKeepsTheEditorOpen()
    {
        ThreeConditions filter;
        QSignalSpy changed(&filter.tags, &FilterTagsModel::filtersChanged);
        filter.click("chip0_0");
        QTRY_VERIFY(filter.isEdited());
        QQuickItem* field = filter.shown().focusItem();
        QCOMPARE(field->property("text").toString(), "Walls");
        filter.shown().press(Qt::Key_A, Qt::ControlModifier);
        filter.shown().type("Doors");
        QCOMPARE(changed.count(), 5);
        QCOMPARE(filter.tags.getFilter()[0][0].value.toStringList(), QStringList{"Doors"});
        QCOMPARE(filter.tags.getFilter()[0][0].value.metaType(), QMetaType::fromType<QStringList>());
        QVERIFY(filter.isEdited());
        QCOMPARE(field->property("text").toString(), "Doors");
        // A change from elsewhere reaches the field.
        filter.tags.editTag(0, 0, FilterProperties::Layer, Operator::Is, QStringList{"Roofs"});
        QCOMPARE(field->property("text").toString(), "Roofs");
        // The first one closes the suggestions.
        filter.shown().press(Qt::Key_Escape);
        filter.shown().press(Qt::Key_Escape);
        QTRY_VERIFY(!filter.isEdited());
        QTRY_COMPARE(filter.focus(), "chip0_0");
        QCOMPARE(filter.text(), QString(threeConditions).replace("Walls", "Roofs"));
    }

    void thePropertyIsChangedInPlace()
    {
        ThreeConditions filter;
        filter.click("chip0_0");
        QTRY_VERIFY(filter.isEdited());
        filter.click("tagProperty");
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        filter.shown().type("radius");
        filter.shown().press(Qt::Key_Return);
        QTRY_VERIFY(filter.isEdited());
        QCOMPARE(filter.text(), "Radius = 0 mm and Length > 10 mm or Type is Arc");
        QCOMPARE(filter.item("tagProperty")->property("text").toString(), "Geometry > Radius [mm]");
        filter.shown().type("2.5");
        QCOMPARE(filter.text(), "Radius = 2.5 mm and Length > 10 mm or Type is Arc");
        // The same property again keeps what was given.
        filter.click("tagProperty");
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        filter.clickRow("propertyTree", "Radius [mm]");
        QTRY_VERIFY(filter.isEdited());
        QCOMPARE(filter.text(), "Radius = 2.5 mm and Length > 10 mm or Type is Arc");
        // Escape leaves the condition as it was.
        filter.click("tagProperty");
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        filter.shown().press(Qt::Key_Escape);
        QTRY_COMPARE(filter.focus(), "chip0_0");
        QVERIFY(!filter.isEdited());
        QCOMPARE(filter.text(), "Radius = 2.5 mm and Length > 10 mm or Type is Arc");
        // Nothing is left to change when the condition goes.
        filter.shown().press(Qt::Key_Return);
        QTRY_VERIFY(filter.isEdited());
        filter.click("tagProperty");
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        filter.tags.removeTag(0, 0);
        QTRY_VERIFY(!filter.isOpen("propertyPopup"));
        QCOMPARE(filter.text(), "Length > 10 mm or Type is Arc");
    }

    void theValueIsPickedFromWhatIsSelected()
    {
        ThreeConditions filter;
        filter.click("chip0_1");
        QTRY_VERIFY(filter.isEdited());
        QVERIFY(filter.item("pickValue")->isVisible());
        QVERIFY(!filter.item("pickValue")->isEnabled());
        // The thing is selected in the drawing, from where the mouse comes back.
        filter.properties.canPick = true;
        filter.shown().window()->grabWindow();
        const auto moveTo = [&](const QString& name) {
            const QQuickItem* item = filter.item(name);
            QTest::mouseMove(filter.shown().window(), item->mapToScene(item->boundingRect().center()).toPoint());
        };
        moveTo("clearFilter");
        moveTo("finishTag");
        QTRY_VERIFY(filter.item("pickValue")->isEnabled());
        filter.click("pickValue");
        QCOMPARE(filter.text(), threeConditions);
        filter.properties.picked = 7.25;
        filter.click("pickValue");
        QCOMPARE(filter.text(), "Layer is Walls and Length > 7.25 mm or Type is Arc");
        QVERIFY(filter.isEdited());
        // Whoever opens the editor has it at once.
        filter.click("finishTag");
        QTRY_VERIFY(!filter.isEdited());
        filter.properties.picked = QStringList{"Roofs"};
        filter.click("chip0_0");
        QTRY_VERIFY(filter.isEdited());
        QCOMPARE(filter.shown().focusItem()->property("text").toString(), "Walls");
        QQuickItem* field = filter.shown().focusItem();
        filter.click("pickValue");
        QCOMPARE(field->property("text").toString(), "Roofs");
        QCOMPARE(filter.text(), "Layer is Roofs and Length > 7.25 mm or Type is Arc");
    }

    void aFilterHasItsOwnPopup()
    {
        velmtest::PageEngine engine;
        FilterProperties properties;
        FilterTagsModel tags(properties, nullptr);
        Shown shown(engine.load("PanelPage { id: page; implicitWidth: 300; implicitHeight: 520\n"
                                "property var tagsModel; property var propertiesModel\n"
                                "PropertyFilter { anchors.fill: parent; focus: true; tagsModel: page.tagsModel\n"
                                "propertiesModel: page.propertiesModel } }",
                                {{"tagsModel", QVariant::fromValue<QObject*>(&tags)},
                                 {"propertiesModel", QVariant::fromValue<QObject*>(&properties)}}));
        shown.press(Qt::Key_Tab);
        shown.press(Qt::Key_Return);
        QTRY_COMPARE(shown.focusItem()->objectName(), "propertySearch");
        shown.type("length");
        shown.press(Qt::Key_Return);
        QCOMPARE(tags.getFilter(), FilterData({{{FilterProperties::Length, Operator::Equal, 0.0}}}));
    }

    void conjunctionsAreDuplicatedAndRemoved()
    {
        ThreeConditions filter;
        filter.click("duplicateConjunction0");
        QCOMPARE(filter.text(),
                 "Layer is Walls and Length > 10 mm or Layer is Walls and Length > 10 mm or Type is Arc");
        // The copy in the middle is one of its own.
        filter.click("chip1_1");
        QTRY_VERIFY(filter.isEdited());
        filter.shown().type("7");
        filter.shown().press(Qt::Key_Return);
        QTRY_VERIFY(!filter.isEdited());
        QCOMPARE(filter.text(), "Layer is Walls and Length > 10 mm or Layer is Walls and Length > 7 mm or Type is Arc");
        filter.click("removeConjunction0");
        QCOMPARE(filter.text(), "Layer is Walls and Length > 7 mm or Type is Arc");
        filter.click("addCondition1");
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        filter.clickRow("propertyTree", "Visible");
        QTRY_COMPARE(filter.text(), "Layer is Walls and Length > 7 mm or Type is Arc and Visible is false");
        filter.shown().press(Qt::Key_Escape);
        filter.click("removeConjunction1");
        filter.click("removeConjunction0");
        QCOMPARE(filter.tags.getFilter(), FilterData(1));
        QVERIFY(filter.item("emptyFilter")->isVisible());
    }

    void chipsAreRemovedByMouseAndKeyboard()
    {
        ThreeConditions filter;
        filter.item("chip0_0")->forceActiveFocus(Qt::TabFocusReason);
        filter.shown().press(Qt::Key_Delete);
        QCOMPARE(filter.text(), "Length > 10 mm or Type is Arc");
        QCOMPARE(filter.focus(), "chip0_0");
        filter.shown().press(Qt::Key_Backspace);
        QCOMPARE(filter.text(), " or Type is Arc");
        QCOMPARE(filter.focus(), "addCondition0");
        QVERIFY(filter.shown().focusItem()->parentItem());
        filter.click("removeChip", "chip1_0");
        QCOMPARE(filter.text(), " or ");
        filter.tags.setFilter({{{FilterProperties::Visible, Operator::Is, true}}});
        filter.click("chip0_0");
        QTRY_VERIFY(filter.isEdited());
        filter.click("removeTag");
        QTRY_VERIFY(!filter.isEdited());
        QCOMPARE(filter.tags.getFilter(), FilterData(1));
    }

    void theEditorClosesWithItsCondition_data()
    {
        const auto row = velmtest::columns<QString>("what");
        row("another filter is loaded", "load");
        row("the condition is removed", "tag");
        row("its conjunction is removed", "conjunction");
        row("the filter is cleared", "clear");
    }
    void theEditorClosesWithItsCondition()
    {
        QFETCH(QString, what);
        ThreeConditions filter;
        filter.click("chip0_1");
        QTRY_VERIFY(filter.isEdited());
        if (what == "load")
            filter.tags.setFilter({{{FilterProperties::Visible, Operator::Is, true}}});
        else if (what == "tag")
            filter.tags.removeTag(0, 1);
        else if (what == "conjunction")
            filter.tags.removeConjunction(0);
        else
            filter.tags.clear();
        QTRY_VERIFY(!filter.isEdited());
        const FilterData left = filter.tags.getFilter();
        filter.shown().press(Qt::Key_5);
        filter.shown().press(Qt::Key_Return);
        QCOMPARE(filter.tags.getFilter(), left);
        // A chip that stays is edited on its new place.
        filter.tags.setFilter(
            {{{FilterProperties::Length, Operator::Equal, 1.0}, {FilterProperties::Radius, Operator::Equal, 2.0}}});
        filter.click("chip0_1");
        QTRY_VERIFY(filter.isEdited());
        filter.tags.removeTag(0, 0);
        QVERIFY(filter.isEdited());
        filter.shown().type("9");
        QCOMPARE(filter.text(), "Radius = 9 mm");
    }

    void aConditionWithoutAPropertyAsksForOne()
    {
        ShownFilter filter;
        filter.tags.setFilter({{{-1, 0, QVariant()}}});
        QCOMPARE(filter.text(), "choose a property");
        filter.click("chip0_0");
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        QVERIFY(!filter.isOpen("tagEditor"));
        filter.clickRow("propertyTree", "Type");
        QTRY_VERIFY(filter.isOpen("tagEditor"));
        QCOMPARE(filter.tags.getFilter(), FilterData({{{FilterProperties::Type, Operator::Is, 0}}}));
        // A place that was asked for and went is not filled.
        filter.shown().press(Qt::Key_Escape);
        filter.tags.addConjunction();
        filter.click("addCondition1");
        QTRY_VERIFY(filter.isOpen("propertyPopup"));
        filter.tags.removeConjunction(1);
        QTRY_VERIFY(!filter.isOpen("propertyPopup"));
    }

    void chipsFollowTheModel()
    {
        ThreeConditions filter;
        QCOMPARE(filter.text(), threeConditions);
        filter.tags.setFilter({{{FilterProperties::Text, Operator::Contains, QString()}}});
        QCOMPARE(filter.text(), "Contents contains …");
        filter.tags.addTag(0, FilterProperties::Type, Operator::IsNot, 1);
        QCOMPARE(filter.text(), "Contents contains … and Type is not Circle");
        filter.tags.editTag(0, 0, FilterProperties::Text, Operator::Is,
                            "a <b>bold</b> & long text that doesn't fit into it");
        QCOMPARE(filter.item("chip0_0")->property("text").toString(),
                 "Contents is a <b>bold</b> & long text that doesn't fit into it");
        filter.shown().window()->grabWindow();
        QVERIFY(filter.item("chip0_0")->width() <= 300 - 2 * 10 - 2 * 6);
        filter.tags.setFilter({});
        QTRY_VERIFY(filter.item("emptyFilter")->isVisible());
        // Nothing of the former conjunctions is at work.
        filter.page()->setProperty("tagsModel", QVariant::fromValue<QObject*>(nullptr));
        QCOMPARE(filter.item("conjunction0"), nullptr);
        filter.page()->setProperty("tagsModel", QVariant::fromValue<QObject*>(&filter.tags));
        QVERIFY(filter.item("conjunction0"));
    }

    void eachOperatorHasItsMark()
    {
        velmtest::PageEngine engine;
        const std::unique_ptr<QObject> page(
            engine.load("import Tandolin.API.Resources\n"
                        "Item { function mark(icon) { return MarkPaths.nameOf(icon) } }"));
        FilterOperatorsModel operators;
        operators.setCategory(FilterOperatorsModel::All);
        QStringList icons = {"edit.svg", "remove.svg", "copy.svg"};
        for (int row = 0; row < operators.rowCount(); ++row)
            icons += operators.getComboIcon(row);
        QCOMPARE(icons.size(), 15);
        for (const QString& icon : icons) {
            QVariant mark;
            QMetaObject::invokeMethod(page.get(), "mark", Q_RETURN_ARG(QVariant, mark), Q_ARG(QVariant, icon));
            QCOMPARE(mark.toString() + ".svg", icon);
        }
    }

    void whatHasTheKeyboardComesIntoView()
    {
        ShownFilter filter;
        FilterData many;
        for (int row = 0; row < 20; ++row)
            many.push_back({{FilterProperties::Length, Operator::Equal, double(row)}});
        filter.tags.setFilter(many);
        filter.shown().window()->grabWindow();
        const auto isInView = [&](const QString& name) {
            const QRectF area = filter.item(name)->mapRectToScene(filter.item(name)->boundingRect());
            return area.top() >= 0 && area.bottom() <= 520;
        };
        QVERIFY(!isInView("chip19_0"));
        filter.item("chip19_0")->forceActiveFocus(Qt::TabFocusReason);
        QTRY_VERIFY(isInView("chip19_0"));
        filter.item("chip0_0")->forceActiveFocus(Qt::TabFocusReason);
        QTRY_VERIFY(isInView("chip0_0"));
    }
};

PAGE_TEST_MAIN(TestPropertyFilter)
#include "tst_propertyfilter.moc"
