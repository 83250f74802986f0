#include "workbenchtest.h"

#include "host/themecolours.h"

using namespace workbench;

/// A filter of entities, built, saved and loaded by mouse and keyboard in the running program. The program is started
/// once for each test, in the order of the tests, with the files of the one before.
class FilterTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        const QString file = write("lines.dxf", "0\nSECTION\n2\nENTITIES\n"
                   "0\nLINE\n8\nWalls\n10\n0\n20\n0\n11\n30\n21\n0\n"
                   "0\nLINE\n8\nWalls\n10\n0\n20\n4\n11\n5\n21\n4\n"
                   "0\nLINE\n8\nDoors\n10\n0\n20\n8\n11\n30\n21\n8\n"
                   "0\nCIRCLE\n8\nDoors\n62\n1\n10\n15\n20\n14\n40\n4\n"
                   "0\nENDSEC\n0\nEOF\n");
        m_driver.ask([&] {
            openAlone(m_frame, file);
            m_frame.showPanel("Filter");
        });
        m_driver.waitFor("the filter", [&] { return m_driver.hasItem("addCondition0"); });
    }

    void aFilterIsBuiltAndSaved()
    {
        const int dark = litPixels();
        choose("addCondition0", "layer");
        m_driver.replaceText("Walls");
        m_driver.waitFor("both walls", [&] { return selected() == std::vector<unsigned>({0, 1}); });
        m_driver.waitFor("light on the canvas", [&] { return litPixels() > dark; });
        QCOMPARE(m_driver.property("filterStatus", "text").toString(), QString("2 entities match"));

        finish();

        choose("addCondition0", "length");
        m_driver.clickItem("operatorCombo");
        m_driver.waitFor("the operators", [&] { return m_driver.hasOpenList("operatorCombo"); });
        m_driver.key("Down");
        m_driver.key("Down");
        m_driver.key("Return");
        m_driver.clickItem("valueEditor");
        m_driver.replaceText("10");
        m_driver.waitFor("the long wall", [&] { return selected() == std::vector<unsigned>({0}); });

        finish();
        m_driver.clickItem("addAlternative");
        m_driver.waitFor("an alternative", [&] { return m_driver.hasItem("addCondition1"); });
        choose("addCondition1", "colour");
        // By layer is what a new condition has; two rows below it is red.
        m_driver.key("space");
        m_driver.key("Down");
        m_driver.key("Down");
        m_driver.key("space");
        m_driver.waitFor("the red circle, too", [&] { return selected() == std::vector<unsigned>({0, 3}); });
        QCOMPARE(chips(), QStringList({"0: Layer is Walls", "0: Length > 10", "1: Colour is Red"}));
        finish();

        m_driver.clickItem("saveFilter");
        m_driver.waitForDialog("Save filter");
        m_driver.type("long: walls");
        m_driver.key("Return");
        m_driver.waitForDialog("Error");
        QVERIFY(m_driver.dialogText().contains("not allowed in filter names"));
        m_driver.key("Return");
        m_driver.waitForDialog("Save filter");
        m_driver.replaceText("long walls");
        m_driver.key("Return");
        m_driver.waitForNoDialog();
        QCOMPARE(m_driver.ask([&] { return m_frame.filter().buttons()->getFilterList(); }),
                 QStringList({"long walls"}));

        // What was selected otherwise stays when the filter is emptied.
        m_driver.ask([&] { m_frame.selection().set(m_frame.filter().matches().back()); });
        m_driver.clickItem("clearFilter");
        m_driver.waitFor("the empty filter", [&] { return m_driver.hasItem("emptyFilter"); });
        QCOMPARE(selected(), std::vector<unsigned>({3}));
    }

    void aSavedFilterIsLoaded()
    {
        QVERIFY(selected().empty());
        m_driver.clickItem("loadFilter");
        m_driver.waitFor("the saved filters", [&] { return m_driver.hasItem("savedFilters"); });
        m_driver.key("Down");
        m_driver.key("Return");
        m_driver.waitFor("what it finds", [&] { return selected() == std::vector<unsigned>({0, 3}); });
        QCOMPARE(chips(), QStringList({"0: Layer is Walls", "0: Length > 10", "1: Colour is Red"}));
        // Editing in place: another layer.
        m_driver.clickItem("chip0_0");
        m_driver.waitFor("the editor", [&] { return m_driver.hasItem("valueEditor"); });
        m_driver.replaceText("Doors");
        m_driver.waitFor("the door instead", [&] { return selected() == std::vector<unsigned>({2, 3}); });
    }

private:
    void choose(const QString& button, const QString& property)
    {
        m_driver.clickItem(button);
        m_driver.waitFor("the search", [&] { return m_driver.itemHasFocus("propertySearch"); });
        m_driver.type(property);
        m_driver.key("Return");
        m_driver.waitFor("the editor", [&] { return m_driver.hasItem("valueEditor"); });
    }

    void finish()
    {
        m_driver.clickItem("finishTag");
        m_driver.waitFor("the end of the editing", [&] { return !m_driver.hasItem("valueEditor"); });
    }

    QStringList chips()
    {
        return m_driver.ask([&] {
            QStringList texts;
            const velm::FilterTagsModel* tags = m_frame.filter().tags();
            for (int row = 0; row < tags->rowCount(); ++row) {
                const auto* conjunction =
                    tags->index(row, 0).data(velm::FilterTagsModel::ConjunctionModelRole).value<QAbstractListModel*>();
                for (int tag = 0; tag < conjunction->rowCount(); ++tag)
                    texts += QString("%1: %2").arg(row).arg(conjunction->index(tag, 0).data(0).toString());
            }
            return texts;
        });
    }

    std::vector<unsigned> selected()
    {
        return m_driver.ask([&] {
            std::vector<unsigned> places;
            const OdArray<OdDbObjectId>& all = m_frame.documents().current()->database()->modelSpace()->entities();
            for (unsigned place = 0; place < all.size(); ++place)
                if (std::ranges::find(m_frame.selection().entities(), all[place]) !=
                    m_frame.selection().entities().end())
                    places.push_back(place);
            return places;
        });
    }

    int litPixels()
    {
        const QColor accent = m_driver.ask([] { return velm::toQt(wxGuiColour(ut::EGuiColor::BlueHighlight)); });
        return m_driver.countPixels(m_frame.canvas(), accent.rgb());
    }
};

int main(int argc, char** argv)
{
    return runEachInAProgram<FilterTest>(argc, argv, {"aFilterIsBuiltAndSaved", "aSavedFilterIsLoaded"});
}

#include "tst_filter.moc"
