#include "docs/tables/stocktable.h"
#include "support/pagetest.h"
#include "support/rowtext.h"
#include "support/scopes.h"

#include <QQmlComponent>
#include <QQuickItem>

/// The controller that the example's page expects.
class StockController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* stock READ stock CONSTANT)
public:
    StockController()
    {
        table.setFilter(&filter);
        table.setParentId("Stock");
        table.setSourceModel(&source);
    }
    ~StockController() override { table.setSourceModel(nullptr); }

    QAbstractItemModel* stock() { return &table; }
    Q_INVOKABLE void search(const QString& text) { filter.setText(text); }
    Q_INVOKABLE void order(int row) { ordered = row; }

    StockTable source;
    NameFilter filter;
    velm::SortFilterSelectModel table;
    int ordered = -1;
};

class TestTablesExample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsAreSortedSearchedAndActivated();
};

void TestTablesExample::rowsAreSortedSearchedAndActivated()
{
    const velmtest::TemporaryConfig config;
    velm::PluginImportLoader loader;
    std::unique_ptr<QQmlEngine> engine = velm::createEngine(loader);
    QVERIFY(engine);
    StockController controller;
    controller.source.setArticles({{"Screw M10", 5, 0.2}, {"Nut", 7, 0.1}, {"Screw M8", 3, 0.1}});
    QQmlComponent component(engine.get(), QUrl::fromLocalFile(VELM_DOCS "/tables/StockPage.qml"));
    std::unique_ptr<QObject> page(
        component.createWithInitialProperties({{"controller", QVariant::fromValue(&controller)}}));
    QVERIFY2(page, qPrintable(component.errorString()));
    QCOMPARE(controller.table.columnCount(), 2);

    QVERIFY(controller.table.doSort(StockTable::Name, true));
    QCOMPARE(velmtest::rowText(controller.table), "Nut Screw M8 Screw M10");
    page->findChild<QObject*>("search")->setProperty("text", "screw");
    QCOMPARE(velmtest::rowText(controller.table), "Screw M8 Screw M10");

    QVERIFY(
        QMetaObject::invokeMethod(page->findChild<QObject*>("stock"), "cellActivated", Q_ARG(int, 0), Q_ARG(int, 0)));
    QCOMPARE(controller.ordered, 2);
    page.reset();
    velm::resetEngine(engine);
}

PAGE_TEST_MAIN(TestTablesExample)
#include "tst_tablesexample.moc"
