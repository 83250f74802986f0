#include "velm/models/menumodel.h"

#include "support/rowtext.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QMetaMethod>
#include <QTest>

using namespace velm;
using velmtest::rowText;
using velmtest::SignalLog;

namespace {
using Plain = std::function<void()>;
using WithData = std::function<void(const MenuData&)>;

MenuData checkable(const QString& text, bool checked)
{
    return MenuData(text, {}, {}, {}, {}, MenuData::Enabled | MenuData::Checkable | MenuData::toChecked(checked));
}
} // namespace

class TestMenuModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachRoleShowsItsField()
    {
        MenuModel menu;
        const QAbstractItemModelTester tester(&menu, QAbstractItemModelTester::FailureReportingMode::QtTest);
        MenuData data("&Open", {}, {}, "tip", "open.png", MenuData::Enabled | MenuData::Checkable, 42);
        data.shortcut = "Ctrl+O";
        data.menuId = 7;
        data.extraText = "extra";
        const QModelIndex row = menu.appendItem({}, data);
        QCOMPARE(row.data(3), "tip");
        QCOMPARE(row.data(5), "text");
        QCOMPARE(row.data(256), "&Open");
        QCOMPARE(row.data(257), "open.png");
        QCOMPARE(row.data(258), QVariant());
        QCOMPARE(row.data(259), QVariant(true));
        QCOMPARE(row.data(260), QVariant(true));
        QCOMPARE(row.data(261), QVariant(false));
        QCOMPARE(row.data(262), "Ctrl+O");
        QCOMPARE(row.data(263), QVariant(7));
        QCOMPARE(row.data(264), QVariant(42));
        for (const int role : {0, 1, 2, 4, 255, 265, 356})
            QCOMPARE(row.data(role), QVariant());
        QCOMPARE(menu.data({}, 256), QVariant());
        QCOMPARE(menu.columnCount(), 1);

        const QImage image(2, 3, QImage::Format_RGB32);
        menu.update(row, [&](MenuData& changed) {
            changed.bitmap = std::make_unique<QImage>(image);
            changed.setEnabled(false);
            changed.setChecked(true);
            return true;
        });
        QCOMPARE(row.data(258).value<QImage>().size(), image.size());
        QCOMPARE(row.data(259), QVariant(false));
        QCOMPARE(row.data(261), QVariant(true));
        // A mark that was left on a row that isn't checkable any more doesn't count.
        menu.update(row, [](MenuData& changed) {
            changed.flags = MenuData::Checked;
            return true;
        });
        QCOMPARE(row.data(260), QVariant(false));
        QCOMPARE(row.data(261), QVariant(false));
        QCOMPARE(menu.rowContentId(row), menu.rowContentId(menu.appendItem({}, MenuData::title("other"))));
    }

    void theNamesThatPagesBindTo()
    {
        const QHash<int, QByteArray> names = MenuModel().roleNames();
        QCOMPARE(names.value(3), "tooltip");
        QCOMPARE(names.value(5), "whatsThis");
        const QList<QByteArray> own{"text", "icon", "bitmap", "enabled", "checkable", "checked", "shortcut", "menuId"};
        for (int role = 256; role < 264; ++role)
            QCOMPARE(names.value(role), own[role - 256]);
        QVERIFY(!names.contains(264));
        QCOMPARE(names.value(356), "disabled");
        QCOMPARE(MenuModel().customRoleNames().size(), 9);

        QStringList signatures;
        const QMetaObject& metaObject = MenuModel::staticMetaObject;
        for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index)
            signatures +=
                metaObject.method(index).methodSignature() + ' ' + metaObject.method(index).parameterNames().join(',');
        QCOMPARE(signatures.join("; "),
                 "menuItemTriggered(QModelIndex) modelIndex; separatorCount(QModelIndex) parent; "
                 "checkableRowPresent(QModelIndex) parent; getMenuItemLabelText(QModelIndex) modelIndex");
    }

    void aTriggeredRowRunsItsCommand()
    {
        MenuModel menu;
        QStringList log;
        const QModelIndex plain = menu.appendItem({}, MenuData("a", Plain([&] { log += "plain"; })));
        const QModelIndex told = menu.appendItem(
            {}, MenuData("b", WithData([&](const MenuData& data) { log += data.text + data.userData.toString(); }), {},
                         {}, {}, MenuData::Enabled, 9));
        QVERIFY(QMetaObject::invokeMethod(&menu, "menuItemTriggered", Q_ARG(QModelIndex, plain)));
        menu.menuItemTriggered(told);
        menu.menuItemTriggered(menu.appendItem({}, MenuData("c", WithData())));
        menu.menuItemTriggered(menu.appendItem({}, MenuData()));
        menu.menuItemTriggered({});
        QCOMPARE(log.join(' '), "plain b9");
    }

    void aCommandMayRebuildTheMenuItIsRunFrom()
    {
        MenuModel menu;
        const QString text("kept alive by the running command");
        QString seen;
        menu.appendItem({}, MenuData("a", WithData([&menu, &seen, text](const MenuData& data) {
                                         menu.reset();
                                         menu.appendItem({}, MenuData(data.text + "2", {}));
                                         seen = text;
                                     })));
        menu.menuItemTriggered(menu.index(0, 0));
        QCOMPARE(seen, text);
        QCOMPARE(rowText(menu, MenuModel::TextRole), "a2");
    }

    void updateStateRefreshesTheRowsThatCanBe()
    {
        MenuModel menu;
        const auto refreshed = [](const QString& text) {
            return MenuData(text, {}, {}, {}, {}, MenuData::Enabled, {}, [](MenuData& data) { data.text += '!'; });
        };
        menu.appendItem({}, MenuData("a", {}));
        const QModelIndex parent = menu.appendItem({}, refreshed("b"));
        menu.appendItem(parent, refreshed("c"));
        menu.appendItem({}, refreshed("d"));
        // A function that takes its own place, or leaves it.
        menu.appendItem({}, MenuData("e", {}, {}, {}, {}, MenuData::Enabled, {}, [](MenuData& data) {
                            data.update = nullptr;
                            data.text += '?';
                        }));
        SignalLog log(menu);
        menu.updateState();
        QCOMPARE(log.take(), "dataChanged(1,0, 1,0, []) dataChanged(0,0, 0,0, []) dataChanged(2,0, 2,0, []) "
                             "dataChanged(3,0, 3,0, [])");
        QCOMPARE(rowText(menu, MenuModel::TextRole), "a b!(c!) d! e?");
        menu.beginBatchChanges();
        menu.updateState();
        menu.endBatchChanges();
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        QCOMPARE(rowText(menu, MenuModel::TextRole), "a b!!(c!!) d!! e?");
    }

    void aCheckIsSignalledWhateverComesOfIt()
    {
        MenuModel menu;
        menu.appendItem({}, checkable("a", false));
        menu.appendItem({}, MenuData("b", {}));
        SignalLog log(menu);
        menu.setChecked(menu.index(0, 0), true);
        QCOMPARE(log.take(), "dataChanged(0,0, 0,0, [261])");
        menu.setChecked(menu.index(0, 0), true);
        QCOMPARE(log.take(), "dataChanged(0,0, 0,0, [261])");
        menu.setChecked(menu.index(1, 0), true);
        QCOMPARE(log.take(), "dataChanged(1,0, 1,0, [261])");
        menu.setChecked({}, true);
        QCOMPARE(log.take(), "");
        QCOMPARE(rowText(menu, MenuModel::CheckedRole), "true false");
        QCOMPARE(static_cast<int>(menu.getData(menu.index(1, 0))->flags), 1);
        // Even a batch doesn't silence it.
        menu.beginBatchChanges();
        menu.setChecked(menu.index(0, 0), false);
        menu.endBatchChanges();
        QCOMPARE(log.take(), "modelAboutToBeReset dataChanged(0,0, 0,0, [261]) modelReset");
        QVERIFY(!menu.getData(menu.index(0, 0))->isChecked());
    }

    void aPopupIsSizedByItsDirectRows()
    {
        MenuModel menu;
        const QModelIndex parent = menu.appendItem({}, MenuData("a", {}));
        QCOMPARE(menu.separatorCount(parent), 0);
        menu.appendItem(parent, MenuData("b", {}));
        menu.appendItem(parent, MenuData());
        menu.appendItem(parent, MenuData::title("c"));
        const QModelIndex last = menu.appendItem(parent, MenuData());
        menu.appendItem(last, checkable("d", false));
        QCOMPARE(menu.separatorCount(parent), 2);
        QCOMPARE(menu.separatorCount({}), 0);
        QVERIFY(!menu.checkableRowPresent(parent));
        QVERIFY(menu.checkableRowPresent(last));
    }

    void labelsLoseEveryAmpersand()
    {
        MenuModel menu;
        QCOMPARE(menu.getMenuItemLabelText(menu.appendItem({}, MenuData("&File && Edit", {}))), "File  Edit");
        QCOMPARE(menu.getData(menu.index(0, 0))->text, "&File && Edit");
        QCOMPARE(menu.getMenuItemLabelText({}), "");
    }
};

QTEST_APPLESS_MAIN(TestMenuModel)
#include "tst_menumodel.moc"
