#include "docs/images/placedpicture.h"
#include "support/pagetest.h"

#include <QAbstractItemModel>
#include <QQmlComponent>
#include <QQuickItem>

/// The controller that the example's page expects.
class PreviewController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QImage picture MEMBER picture CONSTANT)
public:
    QImage picture = QImage(40, 20, QImage::Format_RGB32);
};

class TestImagesExample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aPictureFillsItsPlace()
    {
        QImage picture(3, 1, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.setPixelColor(1, 0, Qt::green);
        QImage page(20, 20, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        drawPreview(picture, painter, QRect(5, 5, 10, 10));
        painter.end();
        for (const auto& [place, colour] : {std::pair{QPoint(4, 10), Qt::white}, std::pair{QPoint(5, 5), Qt::green},
                                            std::pair{QPoint(14, 14), Qt::green}, std::pair{QPoint(15, 10), Qt::white}})
            QCOMPARE(page.pixelColor(place), QColor(colour));
    }

    void aPageIsTriedOutByItsSettings()
    {
        velm::PluginImportLoader loader;
        std::unique_ptr<QQmlEngine> engine = velm::createEngine(loader);
        PreviewController controller;
        QQmlComponent component(engine.get(), QUrl::fromLocalFile(VELM_DOCS "/images/PreviewPage.qml"));
        const std::unique_ptr<QObject> page(
            component.createWithInitialProperties({{"controller", QVariant::fromValue<QObject*>(&controller)}}));
        QVERIFY2(page, qPrintable(component.errorString()));
        const auto* preview = page->findChild<QQuickItem*>("preview");
        QCOMPARE(preview->implicitWidth(), 40.0);
        QVERIFY(!preview->smooth());
        auto* rows = page->findChild<QObject*>("settings")
                         ->property("settings")
                         .value<QObject*>()
                         ->property("model")
                         .value<QAbstractItemModel*>();
        QCOMPARE(rows->rowCount(), 2);
        QVERIFY(rows->setData(rows->index(0, 0), true, Qt::UserRole + 3));
        QVERIFY(rows->setData(rows->index(1, 0), 2, Qt::UserRole + 3));
        QVERIFY(preview->smooth());
        QCOMPARE(preview->property("mode").toInt(), 2);
    }
};

PAGE_TEST_MAIN(TestImagesExample)
#include "tst_imagesexample.moc"
