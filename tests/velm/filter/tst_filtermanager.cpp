#include "savedfilters.h"

#include "support/members.h"
#include "support/signallog.h"
#include "support/table.h"
#include "velm/filter/examplefilterproperties.h"
#include "velm/filter/loadfiltercontroller.h"

#include <QStandardItemModel>
#include <QTest>

using namespace velm;
using namespace savedfilters;
using velmtest::SignalLog;

namespace {
const FilterData walls{{{0, 0, "wall"}}, {}};
const FilterData doors{{{0, 1, "door"}, {1, 2, 3}}};
const QString missingText = "warning | Property Not Available | This filter uses properties that are not available "
                            "here:\n\n- Height\n- Fire rating\n\nWithout them the filter may find other entities. |  | "
                            "Load without missing properties 4, Cancel 16";
} // namespace

class TestFilterManager : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(FilterManagerButtonsController::staticMetaObject),
                 "signal: propertiesModelChanged() tagsModelChanged() numFiltersChanged() "
                 "slot: setPropertiesModel(QAbstractItemModel*) setTagsModel(QAbstractItemModel*) openSaveDialog() "
                 "property: loadFilterController! hasSavedFilters!");
        FilterManagerButtonsController buttons;
        QVERIFY(buttons.parent() == nullptr);
        QVERIFY(buttons.property("loadFilterController").value<QObject*>() == buttons.getLoadFilterController());
        QVERIFY(qobject_cast<LoadFilterController*>(buttons.getLoadFilterController()));
        const QMetaObject& meta = FilterManagerButtonsController::staticMetaObject;
        const QMetaProperty saved = meta.property(meta.indexOfProperty("hasSavedFilters"));
        QCOMPARE(saved.notifySignal().name(), QByteArray("numFiltersChanged"));
    }

    // What each operation does to tags, proposed name, list and signals, one row of the table a test.

    void savingTakesTheNameAndLeavesTheTags()
    {
        Fixture all;
        all.connectAll();
        all.tags.setFilter(walls);
        QCOMPARE(all.proposedName(), QString());
        SignalLog buttons(all.buttons);
        SignalLog tags(all.tags);
        // Any name: to check it is the dialog's work.
        all.buttons.save("a/b");
        QCOMPARE(all.takeLog(), "1 save a/b");
        QCOMPARE(all.disk.saved, walls);
        QVERIFY(all.disk.properties == &all.properties);
        QCOMPARE(all.proposedName(), "a/b");
        QCOMPARE(buttons.take() + tags.take(), "");
        // Only the store can tell whether the set has changed.
        all.disk.tellListeners();
        QCOMPARE(buttons.take(), "numFiltersChanged");
    }

    void openingReplacesTheTagsAndTakesTheName()
    {
        Fixture all;
        all.connectAll();
        all.tags.setFilter(walls);
        SignalLog buttons(all.buttons);
        SignalLog tags(all.tags);
        all.disk.loaded = doors;
        all.buttons.open("d");
        QCOMPARE(all.takeLog(), "1 load d");
        QVERIFY(all.disk.properties == &all.properties);
        QCOMPARE(all.tags.getFilter(), doors);
        QCOMPARE(all.proposedName(), "d");
        QCOMPARE(buttons.take(), "");
        QCOMPARE(tags.take(), "modelAboutToBeReset modelReset filtersChanged");
        QCOMPARE(all.takeMessages(), QStringList());
        // A filter that the tags refuse still gives the name.
        all.disk.loaded = FilterData{{{2, 0, "x"}}};
        all.buttons.open("bad");
        QCOMPARE(all.tags.getFilter(), doors);
        QCOMPARE(tags.take(), "");
        QCOMPARE(all.proposedName(), "bad");
    }

    void missingPropertiesAreAsked_data()
    {
        const auto row = velmtest::columns<int>("answer");
        row("the filter is loaded without them", 4);
        row("the loading is cancelled", 16);
        row("another answer cancels, too", yes);
    }
    void missingPropertiesAreAsked()
    {
        QFETCH(int, answer);
        Fixture all;
        all.connectAll();
        all.tags.setFilter(walls);
        SignalLog signal(all.tags);
        all.disk.loaded = doors;
        all.disk.missing = QStringList{"Height", "Fire rating"};
        all.dialogs.answers = {{answer, false}};
        all.buttons.open("d");
        QCOMPARE(all.takeMessages(), QStringList(missingText));
        QCOMPARE(all.tags.getFilter(), answer == 4 ? doors : walls);
        QCOMPARE(signal.take(), answer == 4 ? "modelAboutToBeReset modelReset filtersChanged" : "");
        QCOMPARE(all.proposedName(), answer == 4 ? "d" : "");
    }

    void aNewerFilterIsRefused()
    {
        Fixture all;
        all.connectAll();
        all.tags.setFilter(walls);
        SignalLog signal(all.tags);
        all.disk.requiredVersion = L"27.1 %s";
        all.disk.missing = QStringList("ignored");
        all.dialogs.answers = {{4, false}};
        all.buttons.open("d");
        QCOMPARE(all.takeMessages(),
                 QStringList("error | Filter Version Error | The filter requires Tandolin 27.1 %s or higher to open. | "
                             " | &OK 4"));
        QCOMPARE(all.tags.getFilter(), walls);
        QCOMPARE(signal.take() + all.proposedName(), "");
        // Any other failure says nothing.
        all.disk.requiredVersion.empty();
        all.buttons.open("d");
        QCOMPARE(all.takeMessages(), QStringList());
        QCOMPARE(all.tags.getFilter(), walls);
        QCOMPARE(all.proposedName(), "");
        // A filter with a version is a filter.
        all.disk.requiredVersion = L"1";
        all.disk.loaded = doors;
        all.disk.missing.clear();
        all.buttons.open("d");
        QCOMPARE(all.tags.getFilter(), doors);
    }

    void otherOperationsLeaveTagsAndNameAlone()
    {
        Fixture all;
        all.connectAll();
        all.disk.names = QStringList{"d", "D_1", "d_2"};
        all.disk.loaded = doors;
        all.buttons.open("d");
        all.takeLog();
        SignalLog buttons(all.buttons);
        SignalLog tags(all.tags);
        all.buttons.rename("d", "e");
        // By case "d_1" is free, though it couldn't be typed. This must stay.
        all.buttons.duplicate("d");
        all.buttons.duplicate("d_2");
        all.buttons.duplicate("new");
        all.buttons.remove("d");
        QCOMPARE(all.takeLog(),
                 "1 rename d e, 1 duplicate d d_1, 1 duplicate d_2 d_3, 1 duplicate new new, 1 remove d");
        QCOMPARE(buttons.take() + tags.take(), "");
        QCOMPARE(all.tags.getFilter(), doors);
        QCOMPARE(all.proposedName(), "d");
    }

    void theSaveDialogChecksTheName()
    {
        Fixture all;
        all.connectAll();
        all.disk.names = QStringList("Taken");
        QString texts;
        all.expectDialog(texts);
        all.buttons.openSaveDialog();
        QCOMPARE(texts, "Save filter | Enter a filter name: | Save | ");
        QCOMPARE(all.takeLog() + all.proposedName(), "");

        // Empty, forbidden, a saved name with No, and then with Yes; what is saved meanwhile doesn't count.
        all.gui.log.clear();
        all.gui.dialogs = {{Fixture::type(""), Fixture::type("a|b"), Fixture::type("taken"), Fixture::type("taken")}};
        all.dialogs.answers = {{4, false}, {4, false}, {no, false}, {yes, false}};
        all.buttons.openSaveDialog();
        QCOMPARE(all.takeMessages().size(), 4);
        QCOMPARE(all.gui.log.join(", "), "createDialog NameDialog.qml, stayed open at 5100, stayed open at 5100, "
                                         "stayed open at 5100, ended with 5100, destroyed");
        QCOMPARE(all.takeLog(), "1 save taken");
        velmtest::DialogStep late = Fixture::type("late");
        late.action = [&all, type = late.action](BaseDialogController& dialog) {
            all.disk.names += "late";
            type(dialog);
        };
        all.gui.dialogs = {{late}};
        all.buttons.openSaveDialog();
        QCOMPARE(all.takeMessages(), QStringList());
        QCOMPARE(all.takeLog(), "1 save late");
        QCOMPARE(all.proposedName(), "late");
    }

    void withoutAPartNothingHappens_data()
    {
        const auto row = velmtest::columns<bool, bool, bool, bool, QString, int>(
            "hasTags", "hasProperties", "hasFactory", "hasManager", "log", "signalCount");
        row("no tags", false, true, true, true, "1 rename a b, 1 duplicate a a, 1 remove a", 1);
        row("no properties", true, false, true, true, "", 0);
        row("no factory of stores", true, true, false, true, "", 0);
        row("no manager of factories", true, true, true, false, "", 0);
    }
    void withoutAPartNothingHappens()
    {
        QFETCH(bool, hasTags);
        QFETCH(bool, hasProperties);
        QFETCH(bool, hasFactory);
        QFETCH(bool, hasManager);
        QFETCH(QString, log);
        QFETCH(int, signalCount);
        Fixture all;
        const velmtest::FakeFilterProperties unmanaged({{"", "Name", "string", {}, {}}});
        const auto example = ExampleFilterProperties::createExampleFilterProperties();
        QStandardItemModel other;
        if (!hasFactory)
            IFilterManagerFileIO::setCreateFileIOFunc({});
        SignalLog signal(all.buttons);
        // Models of another class count as none.
        all.buttons.setTagsModel(hasTags ? static_cast<QAbstractItemModel*>(&all.tags) : &other);
        all.buttons.setPropertiesModel(!hasProperties ? static_cast<QAbstractItemModel*>(example.get())
                                       : hasManager   ? &all.properties
                                                      : const_cast<velmtest::FakeFilterProperties*>(&unmanaged));
        QCOMPARE(signal.take(), QStringList(signalCount, "numFiltersChanged").join(' '));
        all.disk.loaded = doors;
        all.buttons.openSaveDialog();
        all.buttons.save("a");
        all.buttons.open("a");
        all.buttons.rename("a", "b");
        all.buttons.duplicate("a");
        all.buttons.remove("a");
        QCOMPARE(all.takeLog(), log);
        QCOMPARE(all.gui.log, QStringList());
        QCOMPARE(all.tags.getFilter(), FilterData(1));
        all.disk.names = QStringList("a");
        QCOMPARE(all.buttons.getFilterList(),
                 hasProperties && hasFactory && hasManager ? all.disk.names : QStringList());
    }

    void withoutDialogsTheBoxesAreSkipped()
    {
        Fixture all;
        all.connectAll();
        setVELMExternalFunction({});
        all.buttons.openSaveDialog();
        all.disk.requiredVersion = L"27";
        all.buttons.open("newer");
        all.disk.missing = QStringList("Height");
        all.disk.loaded = doors;
        all.buttons.open("with missing properties");
        QCOMPARE(all.tags.getFilter(), FilterData(1));
        setVELMExternalFunction(all.functions());
        QCOMPARE(all.takeMessages(), QStringList());
        QCOMPARE(all.proposedName(), "");
    }

    void savedFiltersAreAskedForOnEachRead()
    {
        Fixture all;
        QCOMPARE(all.buttons.property("hasSavedFilters"), QVariant(false));
        all.disk.names = QStringList("a");
        QCOMPARE(all.buttons.property("hasSavedFilters"), QVariant(false));
        all.connectAll();
        QCOMPARE(all.buttons.property("hasSavedFilters"), QVariant(true));
        all.disk.names.clear();
        QCOMPARE(all.buttons.property("hasSavedFilters"), QVariant(false));
    }

    void anotherPropertyModelBringsAnotherStore()
    {
        Fixture all;
        SignalLog signal(all.buttons);
        all.connectAll();
        QCOMPARE(signal.take(), "numFiltersChanged");
        all.buttons.save("a");
        QCOMPARE(all.disk.listenerCount(), 1);
        QCOMPARE(all.takeLog(), "1 save a");
        const auto others = std::make_unique<velmtest::FakeFilterProperties>(
            std::vector<velmtest::FakeFilterProperty>{{"", "Name", "string", {}, {}}}, &all.manager);
        all.buttons.setPropertiesModel(others.get());
        // The first store has lost its listener before it went.
        QCOMPARE(all.takeLog(), "1 destroyed with listeners 0");
        QCOMPARE(signal.take(), "numFiltersChanged");
        all.disk.tellListeners();
        QCOMPARE(signal.take(), "numFiltersChanged");
        QCOMPARE(all.proposedName(), "a");
        all.buttons.save("b");
        QVERIFY(all.disk.properties == others.get());

        // Without properties the store stays, heard once, and still lists, renames and removes.
        all.disk.names = QStringList("b");
        all.buttons.setPropertiesModel(nullptr);
        QCOMPARE(signal.take(), "");
        QCOMPARE(all.disk.listenerCount(), 1);
        all.disk.tellListeners();
        QCOMPARE(signal.take(), "numFiltersChanged");
        all.buttons.save("c");
        all.buttons.duplicate("b");
        all.buttons.rename("b", "d");
        QCOMPARE(all.buttons.getFilterList(), QStringList("b"));
        QCOMPARE(all.takeLog(), "2 save b, 2 rename b d");
    }

    void theFirstFactoryOfStoresStays()
    {
        Fixture all;
        const auto null = [](const oc::PropertyFilterFactoriesManager&) -> std::unique_ptr<IFilterManagerFileIO> {
            return nullptr;
        };
        IFilterManagerFileIO::setCreateFileIOFunc(null);
        all.connectAll();
        QCOMPARE(all.disk.stores, 1);
        IFilterManagerFileIO::setCreateFileIOFunc({});
        IFilterManagerFileIO::setCreateFileIOFunc(null);
        SignalLog signal(all.buttons);
        all.buttons.setPropertiesModel(&all.properties);
        QCOMPARE(all.takeLog(), "1 destroyed with listeners 0");
        QCOMPARE(signal.take(), "numFiltersChanged");
        all.buttons.remove("a");
        all.buttons.openSaveDialog();
        QCOMPARE(all.gui.log, QStringList());
    }

    void modelsThatDieCountAsNone()
    {
        Fixture all;
        auto properties = std::make_unique<velmtest::FakeFilterProperties>(
            std::vector<velmtest::FakeFilterProperty>{{"", "Name", "string", {}, {}}}, &all.manager);
        auto tags = std::make_unique<FilterTagsModel>(*properties, nullptr);
        all.buttons.setPropertiesModel(properties.get());
        all.buttons.setTagsModel(tags.get());
        tags.reset();
        all.buttons.save("a");
        all.buttons.setTagsModel(&all.tags);
        properties.reset();
        all.buttons.save("b");
        all.buttons.duplicate("b");
        QCOMPARE(all.takeLog(), "");
    }
};

QTEST_GUILESS_MAIN(TestFilterManager)
#include "tst_filtermanager.moc"
