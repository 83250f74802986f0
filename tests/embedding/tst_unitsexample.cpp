#include "docs/units/percentprovider.h"
#include "support/pagetest.h"
#include "velm/units/iunitsinputcontrollerdelegate.h"
#include "velm/units/settings.h"
#include "velm/units/unitsinputcontroller.h"

#include <QQmlComponent>
#include <QQuickItem>

class TestUnitsExample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fieldsShowTheirValues();
    void aProviderWritesValuesItsOwnWay();
};

void TestUnitsExample::fieldsShowTheirValues()
{
    velm::PluginImportLoader loader;
    std::unique_ptr<QQmlEngine> engine = velm::createEngine(loader);
    QVERIFY(engine);
    velm::Settings::instance()->setLinearUnitPrecision(2);
    velm::Settings::instance()->setAngularUnitPrecision(3);
    QQmlComponent component(engine.get(), QUrl::fromLocalFile(VELM_DOCS "/units/WallPage.qml"));
    std::unique_ptr<QObject> page(component.create());
    QVERIFY2(page, qPrintable(component.errorString()));
    const auto text = [&](const char* name) { return page->findChild<QObject*>(name)->property("text").toString(); };
    QCOMPARE(text("thickness"), QStringLiteral("11.50"));
    QCOMPARE(text("slope"), QStringLiteral("0.524"));
    QCOMPARE(text("storeys"), QStringLiteral("1"));
    page.reset();
    velm::resetEngine(engine);
}

void TestUnitsExample::aProviderWritesValuesItsOwnWay()
{
    velm::UnitsInputController controller;
    controller.getDelegate()->setDataProvider(std::make_unique<PercentProvider>());
    controller.setValue(controller.parseValue(QStringLiteral(" 250 ")));
    QCOMPARE(controller.formatValue(controller.getValue()), QStringLiteral("100"));
    QVERIFY(!controller.validateValue(QStringLiteral("many")));
}

PAGE_TEST_MAIN(TestUnitsExample)
#include "tst_unitsexample.moc"
