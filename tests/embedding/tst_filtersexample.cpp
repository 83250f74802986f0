#include "docs/filters/stockfilter.h"
#include "support/pagetest.h"
#include "velm/filter/filtertagsconjunctionmodel.h"

#include <QQmlComponent>
#include <QQuickItem>

class TestFiltersExample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aFilterIsShownAndEvaluated()
    {
        StockProperties properties;
        velm::FilterTagsModel tags(properties, nullptr);
        const std::vector<double> prices = {1, 5, 9, 20};
        QCOMPARE(countPrices(tags, prices), 0);

        velm::PluginImportLoader loader;
        std::unique_ptr<QQmlEngine> engine = velm::createEngine(loader);
        QQmlComponent component(engine.get(), QUrl::fromLocalFile(VELM_DOCS "/filters/StockFilterPage.qml"));
        std::unique_ptr<QObject> page(
            component.createWithInitialProperties({{"tags", QVariant::fromValue<QObject*>(&tags)},
                                                   {"properties", QVariant::fromValue<QObject*>(&properties)}}));
        QVERIFY2(page, qPrintable(component.errorString()));
        connect(&tags, &velm::FilterTagsModel::filtersChanged, page.get(),
                [&] { page->setProperty("found", QString("%1 found").arg(countPrices(tags, prices))); });
        using Operators = velm::FilterOperatorsModel;
        tags.addTag(0, StockProperties::Price, Operators::Greater, 2.0);
        tags.addTag(0, StockProperties::Price, Operators::Less, 9.0);
        tags.addConjunction();
        tags.addTag(1, StockProperties::Price, Operators::Greater, 10.0);
        QCOMPARE(page->findChild<QObject*>("filterStatus")->property("text").toString(), QString("2 found"));
        const auto* conjunction = tags.index(1, 0).data(0).value<velm::FilterTagsConjunctionModel*>();
        QCOMPARE(conjunction->index(0, 0).data(0).toString(), QString("price > 10 EUR"));
        page.reset();
        velm::resetEngine(engine);
    }
};

PAGE_TEST_MAIN(TestFiltersExample)
#include "tst_filtersexample.moc"
