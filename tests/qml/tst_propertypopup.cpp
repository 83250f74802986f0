#include "shownfilter.h"
#include "support/table.h"
#include "velm/filter/pinnedpropertiesmodel.h"

using velmtest::FilterProperties;
using velmtest::ShownFilter;

namespace {
/// A filter whose popup of properties is open.
class OpenPopup : public ShownFilter
{
public:
    OpenPopup() { click(QStringLiteral("addCondition0")); }
    bool isOpen() const { return ShownFilter::isOpen("propertyPopup"); }
    QStringList tree() const { return rows(QStringLiteral("propertyTree")); }
    velm::PinnedPropertiesModel& pinned() const
    {
        return *qobject_cast<velm::PinnedPropertiesModel*>(popup.getPinnedPropertiesModel());
    }
};

const QStringList allRows = {"Block",       "Name",        "General",   "Layer", "Type",     "Visible", "Geometry",
                             "Length [mm]", "Radius [mm]", "Hyperlink", "Text",  "Contents", "Style",   "Height [mm]"};
} // namespace

/// The popup of properties as a user works it.
class TestFilterPopup : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysChooseAProperty_data()
    {
        const auto row = velmtest::columns<QString, QList<int>, QString>("typed", "keys", "chip");
        row("Enter takes the first that was found", "len", {Qt::Key_Return}, "Length = 0 mm");
        row("of a group by its name", "GEOM", {Qt::Key_Enter}, "Length = 0 mm");
        row("Down goes on to the next one", "geom", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, "Radius = 0 mm");
        row("without a search Down begins at the top, a group", "", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return},
            "Name is …");
        row("Enter closes a group, and Down passes it", "",
            {Qt::Key_Down, Qt::Key_Return, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, "Layer is Walls");
        row("letters find a row of the tree", "", {Qt::Key_Down, Qt::Key_H, Qt::Key_Return}, "Hyperlink is …");
        row("Enter without a search is nothing", "", {Qt::Key_Return}, "");
        row("nor is it where nothing was found", "xyz", {Qt::Key_Return}, "");
    }
    void keysChooseAProperty()
    {
        QFETCH(QString, typed);
        QFETCH(QList<int>, keys);
        QFETCH(QString, chip);
        OpenPopup filter;
        QTRY_VERIFY(filter.isOpen());
        filter.shown().type(qPrintable(typed));
        for (const int key : keys)
            filter.shown().press(Qt::Key(key));
        QCOMPARE(filter.text(), chip);
        QCOMPARE(filter.isOpen(), chip.isEmpty());
        // The new condition is edited at once.
        QCOMPARE(filter.ShownFilter::isOpen("tagEditor"), !chip.isEmpty());
    }

    void aSearchShowsWhatItFinds_data()
    {
        const auto row = velmtest::columns<QString, QStringList>("typed", "rows");
        row("a name", "layer", {"General", "Layer"});
        row("a group, with all that it holds", "text", {"Text", "Contents", "Style", "Height [mm]"});
        row("two terms in any order", "mm tex", {"Text", "Style", "Height [mm]"});
        row("blanks alone", "  ", allRows);
        row("nothing", "xyz", QStringList());
    }
    void aSearchShowsWhatItFinds()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, rows);
        OpenPopup filter;
        QTRY_VERIFY(filter.isOpen());
        QTRY_COMPARE(filter.tree(), allRows);
        // A group that the user closed is opened by the search.
        filter.clickRow("propertyTree", "Text");
        QTRY_COMPARE(filter.tree().size(), allRows.size() - 3);
        filter.item("propertySearch")->forceActiveFocus();
        filter.shown().type(qPrintable(typed));
        filter.shown().window()->grabWindow();
        QTRY_COMPARE(filter.tree(), rows);
    }

    void escapeEmptiesTheSearchAndCloses()
    {
        OpenPopup filter;
        QTRY_VERIFY(filter.isOpen());
        filter.shown().type("len");
        filter.shown().press(Qt::Key_Escape);
        QVERIFY(filter.isOpen());
        QCOMPARE(filter.popup.getSearchString(), QString());
        filter.shown().type("rad");
        filter.shown().press(Qt::Key_Down);
        filter.shown().press(Qt::Key_Escape);
        QTRY_VERIFY(!filter.isOpen());
        QCOMPARE(filter.text(), QString());
        QTRY_COMPARE(filter.shown().focusItem()->objectName(), "addCondition0");
        // The next time begins anew.
        filter.shown().press(Qt::Key_Space);
        QTRY_VERIFY(filter.isOpen());
        QCOMPARE(filter.popup.getSearchString(), QString());
        QCOMPARE(filter.shown().focusItem()->objectName(), "propertySearch");
    }

    void theMouseOpensGroupsAndChooses()
    {
        OpenPopup filter;
        QTRY_VERIFY(filter.isOpen());
        filter.clickRow("propertyTree", "General");
        QTRY_COMPARE(filter.tree().mid(2, 2), (QStringList{"General", "Geometry"}));
        filter.clickRow("propertyTree", "General");
        QTRY_COMPARE(filter.tree(), allRows);
        // The mark at its left does the same, once.
        QQuickItem* tree = filter.item("propertyTree");
        const QPoint mark = tree->mapToScene(QPointF(14, 14)).toPoint();
        QTest::mouseClick(filter.shown().window(), Qt::LeftButton, {}, mark);
        QTRY_COMPARE(filter.tree().mid(0, 2), (QStringList{"Block", "General"}));
        QVERIFY(filter.isOpen());
        filter.clickRow("propertyTree", "Radius [mm]");
        QTRY_VERIFY(!filter.isOpen());
        QCOMPARE(filter.text(), "Radius = 0 mm");
    }

    void propertiesArePinnedByTheMouse()
    {
        OpenPopup filter;
        QTRY_VERIFY(filter.isOpen());
        QVERIFY(!filter.item("favourites")->isVisible());
        filter.clickRow("propertyTree", "Radius [mm]", "pin");
        filter.clickRow("propertyTree", "Layer", "pin");
        QTRY_COMPARE(filter.rows("favourites"), (QStringList{"Radius [mm]", "Layer"}));
        QVERIFY(filter.isOpen());
        filter.clickRow("propertyTree", "Layer", "pin");
        QTRY_COMPARE(filter.rows("favourites"), QStringList{"Radius [mm]"});
        filter.clickRow("favourites", "Radius [mm]", "unpin");
        QTRY_VERIFY(!filter.item("favourites")->isVisible());
        QCOMPARE(filter.pinned().rowCount(), 0);
        filter.clickRow("propertyTree", "Type", "pin");
        filter.shown().type("len");
        QVERIFY(!filter.item("favourites")->isVisible());
        filter.item("propertySearch")->setProperty("text", QString());
        QTRY_VERIFY(filter.item("favourites")->isVisible());
        filter.clickRow("favourites", "Type");
        QTRY_COMPARE(filter.text(), "Type is Line");
    }

    void propertiesArePinnedByTheKeyboard()
    {
        OpenPopup filter;
        QTRY_VERIFY(filter.isOpen());
        for (const char* typed : {"len", "layer", "type"}) {
            filter.shown().type(typed);
            filter.shown().press(Qt::Key_D, Qt::ControlModifier);
            filter.shown().press(Qt::Key_Escape);
        }
        filter.shown().press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(filter.pinned().rowCount(), 3);
        QVERIFY(filter.pinned().isPinned(FilterProperties::Type));
        filter.shown().press(Qt::Key_Down);
        QVERIFY(filter.item("favourites")->hasActiveFocus() ||
                filter.item("favourites")->isAncestorOf(filter.shown().focusItem()));
        filter.shown().press(Qt::Key_Delete);
        QTRY_COMPARE(filter.rows("favourites"), (QStringList{"Layer", "Type"}));
        filter.shown().press(Qt::Key_Down);
        filter.shown().press(Qt::Key_D, Qt::ControlModifier);
        QTRY_COMPARE(filter.rows("favourites"), QStringList{"Layer"});
        // Behind the last favourite the tree begins.
        filter.shown().press(Qt::Key_Down);
        QVERIFY(filter.item("propertyTree")->isAncestorOf(filter.shown().focusItem()));
        filter.shown().press(Qt::Key_Tab, Qt::ShiftModifier);
        filter.shown().press(Qt::Key_Return);
        QTRY_COMPARE(filter.text(), "Layer is Walls");
    }

    void theTreeFollowsItsProperties()
    {
        OpenPopup filter;
        QTRY_VERIFY(filter.isOpen());
        QTRY_COMPARE(filter.tree(), allRows);
        Q_EMIT filter.properties.dataChanged(filter.properties.index(0), filter.properties.index(0));
        QTRY_COMPARE(filter.tree(), allRows);
        // Without properties there is nothing to choose.
        filter.popup.setPropertiesModel(nullptr);
        QTRY_COMPARE(filter.tree(), QStringList());
        filter.shown().press(Qt::Key_Down);
        filter.shown().press(Qt::Key_Return);
        QVERIFY(filter.isOpen());
    }
};

PAGE_TEST_MAIN(TestFilterPopup)
#include "tst_propertypopup.moc"
