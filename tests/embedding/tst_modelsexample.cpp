#include "docs/models/parttree.h"
#include "support/pagetest.h"
#include "support/rowtext.h"

#include <QQmlComponent>
#include <QQuickItem>

/// The controller that the example's page expects.
class PartsController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* parts READ parts CONSTANT)
public:
    QAbstractItemModel* parts() { return &tree; }

    PartTree tree;
};

class TestModelsExample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsOpenStaysOpenThroughARebuild();
};

void TestModelsExample::whatIsOpenStaysOpenThroughARebuild()
{
    velm::PluginImportLoader loader;
    std::unique_ptr<QQmlEngine> engine = velm::createEngine(loader);
    QVERIFY(engine);
    PartsController controller;
    controller.tree.rebuild(1);
    QCOMPARE(velmtest::rowText(controller.tree), "House(Door(Hinge Handle) Window)");
    QQmlComponent component(engine.get(), QUrl::fromLocalFile(VELM_DOCS "/models/PartsPage.qml"));
    std::unique_ptr<QObject> page(
        component.createWithInitialProperties({{"controller", QVariant::fromValue(&controller)}}));
    QVERIFY2(page, qPrintable(component.errorString()));
    const auto* view = page->findChild<QObject*>("parts");
    QVERIFY(view);
    QCOMPARE(view->property("count").toInt(), 1);

    controller.tree.setWantsToBeExpanded(controller.tree.index(0, 0), true);
    QCOMPARE(view->property("count").toInt(), 3);
    controller.tree.rebuild(2);
    QCOMPARE(view->property("count").toInt(), 3);
    QCOMPARE(controller.tree.index(0, 0, controller.tree.index(0, 0)).data(PartTree::countRole).toInt(), 2);
    page.reset();
    velm::resetEngine(engine);
}

PAGE_TEST_MAIN(TestModelsExample)
#include "tst_modelsexample.moc"
