#include "velm/models/treemodel/treebuilder.h"

#include "stringtree.h"
#include "velm/models/menubuilder.h"

#include "od/oderror.h"
#include "support/rowtext.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;
using velmtest::rowText;
using velmtest::StringTree;

class TestTreeBuilder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theCursorGoesDownToTheLastChildAndUpAgain()
    {
        StringTree tree("old(rows)");
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
        TreeBuilder<QString> builder(&tree);
        QCOMPARE(rowText(tree), "");
        const QString text("b");
        builder.addItem("a").addItem(text).children().addItems({"c", "d"}).children().addItem("e");
        builder.parent().addItem("f").parent().addItem("g");
        QCOMPARE(rowText(tree), "a b(c d(e) f) g");
        // Above the root is the root.
        builder.parent().parent().addItem("h");
        QCOMPARE(rowText(tree), "a b(c d(e) f) g h");
    }

    void aCursorWithoutChildrenGoesToTheRoot()
    {
        StringTree tree;
        TreeBuilder<QString> builder(&tree);
        builder.children().addItem("a").children().children().addItem("b");
        QCOMPARE(rowText(tree), "a b");
    }

    void aBuilderJoinsInABatch()
    {
        StringTree tree("A");
        velmtest::SignalLog log(tree);
        {
            const auto batch = tree.scopedBatchChanges();
            TreeBuilder<QString>(&tree).addItem("B").children().addItem("b");
        }
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
    }

    void noModelIsAnError()
    {
        const auto message = [](const auto& construct) {
            try {
                construct();
            } catch (const OdError& error) {
                return QString::fromUtf8(error.what());
            }
            return QString();
        };
        QCOMPARE(message([] { TreeBuilder<QString>(nullptr).addItem("a"); }), "NULL pointer encountered");
        QCOMPARE(message([] { MenuBuilder(nullptr).addTitle("a"); }), "NULL pointer encountered");
    }

    void aMenuIsBuiltInOneChain()
    {
        MenuModel menu;
        menu.appendItem({}, MenuData::title("old"));
        const QAbstractItemModelTester tester(&menu, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const MenuData entry("copied", {});
        MenuBuilder(&menu)
            .addTitle("head")
            .addSeparator(MenuBuilder::NoSeparator)
            .addItem(MenuData("moved", {}))
            .children()
            .addItem(entry)
            .addSeparator(MenuBuilder::AddSeparator)
            .addSeparator(static_cast<MenuBuilder::SeparatorState>(2))
            .addItems({entry, entry})
            .parent()
            .addTitle("foot");
        QCOMPARE(rowText(menu, MenuModel::TextRole), "head moved(copied - copied copied) foot");
        QCOMPARE(rowText(menu, MenuModel::TypeRole), "title text(text separator text text) title");
    }
};

QTEST_APPLESS_MAIN(TestTreeBuilder)
#include "tst_treebuilder.moc"
