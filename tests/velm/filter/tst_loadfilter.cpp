#include "savedfilters.h"

#include "support/members.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"
#include "velm/filter/filterlistmodel.h"
#include "velm/filter/loadfiltercontroller.h"
#include "velm/models/menumodel.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;
using namespace savedfilters;
using velmtest::SignalLog;

namespace {
/// The popup's controller of a fixture, with testers on its models.
struct Popup : Fixture
{
    LoadFilterController& load = *qobject_cast<LoadFilterController*>(buttons.getLoadFilterController());
    const QAbstractItemModelTester listTester{load.getFilterListModel(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest};
    const QAbstractItemModelTester menuTester{load.getMenuModel(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest};

    QString list() const { return velmtest::rowText(*load.getFilterListModel(), 0); }
    void choose(int menuRow)
    {
        auto& menu = *qobject_cast<MenuModel*>(load.getMenuModel());
        menu.getData(menu.index(menuRow, 0))->execute();
    }
};
} // namespace

class TestLoadFilter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(LoadFilterController::staticMetaObject),
                 "signal: openPopup() slot: refreshFilterList() refreshMenuModel(QString) selectFilter(QString) "
                 "property: filterListModel! menuModel!");
        Popup popup;
        QVERIFY(popup.load.parent() == nullptr);
        QVERIFY(popup.load.property("filterListModel").value<QAbstractListModel*>() == popup.load.getFilterListModel());
        QVERIFY(popup.load.property("menuModel").value<QAbstractItemModel*>() == popup.load.getMenuModel());
        QCOMPARE(popup.load.getMenuModel()->rowCount(), 0);
    }

    void theListIsReadWhenItIsAskedFor()
    {
        Popup popup;
        QAbstractListModel& list = *popup.load.getFilterListModel();
        QCOMPARE(list.roleNames(), (QHash<int, QByteArray>{{0, "filterName"}}));
        SignalLog signal(list);
        popup.load.refreshFilterList();
        QCOMPARE(signal.take(), "modelAboutToBeReset modelReset");
        QCOMPARE(list.rowCount(), 0);
        popup.connectAll();
        popup.disk.names = QStringList{"b", "a"};
        QCOMPARE(popup.list(), "");
        popup.load.refreshFilterList();
        QCOMPARE(popup.list(), "b a");
        QCOMPARE(signal.take(), "modelAboutToBeReset modelReset");
        for (const int role : {-1, 1, 2, 256})
            QVERIFY(!list.index(0, 0).data(role).isValid());
        for (const int row : {-1, 2, INT_MAX})
            QVERIFY(!list.data(list.index(row, 0), 0).isValid());
        QCOMPARE(list.rowCount(list.index(0, 0)), 0);
    }

    void aRowOrColumnBeyondTheListIsEmpty()
    {
        // Only a model that went astray can name such indexes.
        class Wider : public FilterListModel
        {
        public:
            QVariant at(int row, int column) const { return data(createIndex(row, column), 0); }
        };
        Wider list;
        list.setNames({"a"});
        QCOMPARE(list.at(0, 0), QVariant("a"));
        QVERIFY(!list.at(0, 1).isValid());
        QVERIFY(!list.at(1, 0).isValid());
    }

    void aFilterIsSelected()
    {
        Popup popup;
        popup.connectAll();
        popup.disk.loaded = FilterData{{{1, 2, 3}}};
        popup.load.selectFilter("a");
        QCOMPARE(popup.takeLog(), "1 load a");
        QCOMPARE(popup.tags.getFilter(), *popup.disk.loaded);
        QCOMPARE(popup.proposedName(), "a");
    }

    void theMenuIsMadeAnewForEachFilter()
    {
        Popup popup;
        popup.connectAll();
        const QAbstractItemModel& menu = *popup.load.getMenuModel();
        for (const char* name : {"a", "b"}) {
            popup.load.refreshMenuModel(name);
            QCOMPARE(velmtest::rowText(menu, MenuModel::TextRole), "Rename Remove Duplicate");
            QCOMPARE(velmtest::rowText(menu, MenuModel::IconRole), "edit.svg remove.svg copy.svg");
            QCOMPARE(velmtest::rowText(menu, MenuModel::TypeRole), "text text text");
            QCOMPARE(velmtest::rowText(menu, MenuModel::TooltipRole), "- - -");
            QCOMPARE(velmtest::rowText(menu, MenuModel::EnabledRole), "true true true");
            QCOMPARE(velmtest::rowText(menu, MenuModel::CheckableRole), "false false false");
            popup.choose(2);
            QCOMPARE(popup.takeLog(), QString("1 duplicate %1 %1").arg(name));
        }
    }

    void aDuplicateRefreshesTheList()
    {
        Popup popup;
        popup.connectAll();
        popup.disk.names = QStringList("a");
        popup.load.refreshMenuModel("a");
        SignalLog signal(popup.load);
        SignalLog list(*popup.load.getFilterListModel());
        popup.choose(2);
        QCOMPARE(popup.takeLog(), "1 duplicate a a_1");
        QCOMPARE(list.take(), "modelAboutToBeReset modelReset");
        QCOMPARE(signal.take(), "");
    }

    void renamingAsksForANewName()
    {
        Popup popup;
        popup.connectAll();
        popup.disk.names = QStringList{"a", "b"};
        popup.load.refreshMenuModel("a");
        SignalLog signal(popup.load);
        SignalLog list(*popup.load.getFilterListModel());
        QString texts;
        popup.expectDialog(texts);
        popup.choose(0);
        QCOMPARE(texts, "Rename filter | Enter a unique filter name: | Rename | a");
        QCOMPARE(signal.take() + popup.takeLog(), "");

        // Its own name and another case of it count as duplicates.
        popup.gui.dialogs = {
            {{{}, ok}, Fixture::type("A"), Fixture::type("B"), Fixture::type("a?"), Fixture::type("c")}};
        popup.dialogs.answers = {{4, false}, {4, false}, {4, false}, {4, false}};
        QObject::connect(&popup.load, &LoadFilterController::openPopup, &popup.load,
                         [&popup] { popup.disk.log += "open"; });
        popup.choose(0);
        QStringList captions;
        for (const QString& message : popup.takeMessages())
            captions += message.section(" | ", 1, 1);
        QCOMPARE(captions, (QStringList{"Duplicate Filter", "Duplicate Filter", "Duplicate Filter", "Error"}));
        QCOMPARE(popup.takeLog(), "1 rename a c, open");
        // The page reads the list when the popup opens.
        QCOMPARE(list.take(), "");
        QCOMPARE(popup.proposedName(), "");
    }

    void renamingWithoutAStoreOnlyOpensThePopup()
    {
        Popup popup;
        popup.load.refreshMenuModel("a");
        popup.gui.dialogs = {{Fixture::type("c")}};
        SignalLog signal(popup.load);
        popup.choose(0);
        QCOMPARE(signal.take(), "openPopup");
        QCOMPARE(popup.takeLog(), "");
    }

    void removingAsksFirst_data()
    {
        const auto row = velmtest::columns<int>("answer");
        row("yes removes", yes);
        row("no keeps", no);
        row("a closed box keeps", 16);
    }
    void removingAsksFirst()
    {
        QFETCH(int, answer);
        Popup popup;
        popup.connectAll();
        popup.load.refreshMenuModel("100 %s \U0001F600");
        popup.dialogs.answers = {{answer, false}};
        SignalLog signal(popup.load);
        SignalLog list(*popup.load.getFilterListModel());
        popup.choose(1);
        QCOMPARE(popup.takeMessages(),
                 QStringList("info | Delete Filter | Are you sure you want to delete \"100 %s \U0001F600\"? |  | "
                             "&Yes 2, &No 8"));
        QCOMPARE(popup.takeLog(), answer == yes ? "1 remove 100 %s \U0001F600" : "");
        QCOMPARE(list.take(), answer == yes ? "modelAboutToBeReset modelReset" : "");
        QCOMPARE(signal.take(), "");
    }

    void withoutAHostTheMenuAsksNothing()
    {
        Popup popup;
        popup.connectAll();
        popup.load.refreshMenuModel("a");
        setVELMExternalFunction({});
        SignalLog signal(popup.load);
        SignalLog list(*popup.load.getFilterListModel());
        popup.choose(0);
        popup.choose(1);
        QCOMPARE(popup.takeLog() + signal.take() + list.take(), "");
    }
};

QTEST_GUILESS_MAIN(TestLoadFilter)
#include "tst_loadfilter.moc"
