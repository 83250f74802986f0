#include "showncombo.h"

#include <QTimer>

using namespace velm;
using velmtest::ComboHost;
using velmtest::ShownCombo;

/// What the combos of drawing properties show of their rows.
class TestControlsComboPictures : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void coloursShowTheirSwatches()
    {
        ComboHost host;
        auto* layer = host.drawing->addLayer(L"Walls");
        layer->setColor(OdCmColor::fromRGB(200, 100, 50));
        const auto model = host.colours(true);
        model->setByLayer(layer->objectId());
        model->setCurrentIndex(0);
        ShownCombo combo("ColorCombo", *model);
        QTRY_COMPARE(combo.pictureColor(), QColor(200, 100, 50));
        layer->setColor(OdCmColor::fromRGB(20, 100, 50));
        model->setByLayer(layer->objectId());
        QTRY_COMPARE(combo.pictureColor(), QColor(20, 100, 50));
        combo.open();
        QTRY_VERIFY(combo.rowItem(9));
        QTRY_COMPARE(combo.pictureColor(2), QColor(Qt::red));
        QCOMPARE(combo.rowName(9), QStringLiteral("*Varies*"));
        combo.clickRow(9);
        QVERIFY(combo.isOpen());
        QTest::mouseMove(combo.list(), combo.centreOf(combo.rowItem(5)));
        QTRY_COMPARE(combo.highlighted(), 5);
        // A mouse that stays leaves the highlight to the keys.
        combo.shown().press(Qt::Key_Down);
        combo.list()->grabWindow();
        QTest::mouseMove(combo.list(), combo.centreOf(combo.rowItem(5)));
        QCOMPARE(combo.highlighted(), 6);
        QTest::mouseMove(combo.list(), combo.centreOf(combo.rowItem(9)));
        combo.clickRow(3);
        QCOMPARE(combo.name(), QStringLiteral("Yellow"));
        QTRY_COMPARE(combo.pictureColor(), QColor(Qt::yellow));
    }

    void theLayerMayBeShownAsBlack()
    {
        ComboHost host;
        auto* layer = host.drawing->addLayer(L"Walls");
        layer->setColor(OdCmColor::fromRGB(200, 100, 50));
        const auto black = host.colours(false, 4);
        black->setByLayer(layer->objectId());
        black->setCurrentIndex(7);
        ShownCombo blackCombo("ColorCombo", *black);
        QCOMPARE(blackCombo.name(), QStringLiteral("ByLayer"));
        QTRY_COMPARE(blackCombo.pictureColor(), QColor(Qt::black));
    }

    void lineTypesShowTheirPreviews()
    {
        ComboHost host;
        const auto model = host.lineTypes();
        model->setCurrentLineType(model->lineTypeId(2).value());
        // While a page is made for another theme, the host's colours aren't those of that theme.
        host.ground = wxColour(192, 192, 192);
        QTimer::singleShot(0, [&] { host.ground = wxColour(255, 0, 255); });
        ShownCombo combo("LineTypeCombo", *model);
        QTRY_COMPARE(combo.pictureColor(), QColor(255, 0, 255));
        // Its ground is the theme's.
        host.ground = wxColour(255, 255, 0);
        QMetaObject::invokeMethod(combo.shown().page(), "setTheme", Q_ARG(int, 1));
        QTRY_COMPARE(combo.pictureColor(), QColor(255, 255, 0));
        host.ground = wxColour(255, 0, 255);
        QMetaObject::invokeMethod(combo.shown().page(), "setTheme", Q_ARG(int, 0));
        QTRY_COMPARE(combo.pictureColor(), QColor(255, 0, 255));
        // Where the varies row is current, it has no picture, and it can't be chosen.
        model->setIsVaries(true);
        model->refresh(false, model->lineTypeId(2).value());
        QCOMPARE(combo.name(), QStringLiteral("*Varies*"));
        QVERIFY(combo.pictureColor() != QColor(255, 0, 255));
        combo.open();
        QTRY_VERIFY(combo.rowItem(5));
        QCOMPARE(combo.rowName(5), QStringLiteral("Load..."));
        QTRY_COMPARE(combo.pictureColor(3), QColor(255, 0, 255));
        combo.clickRow(4);
        QVERIFY(combo.isOpen());
        combo.clickRow(3);
        QCOMPARE(combo.name(), QStringLiteral("Dashed"));
    }

    void lineWeightsFollowTheirUnits()
    {
        ComboHost host;
        const auto model = host.lineWeights();
        model->setCurrentIndex(5);
        ShownCombo combo("LineWeightCombo", *model);
        const auto strokeHeight = [](const QQuickItem* item) {
            return item->findChild<QQuickItem*>(QStringLiteral("stroke"))->height();
        };
        QCOMPARE(combo.name(), QStringLiteral("100 mm"));
        QCOMPARE(strokeHeight(combo.box()), 14.0);
        host.unit = QStringLiteral("inch");
        combo.open();
        QTRY_VERIFY(combo.rowItem(4));
        QCOMPARE(combo.rowName(4), QStringLiteral("75 inch"));
        QCOMPARE(strokeHeight(combo.rowItem(3)), 7.0);
        QCOMPARE(strokeHeight(combo.rowItem(1)), 1.0);
        QCOMPARE(combo.name(), QStringLiteral("100 inch"));
        // And while the list is open.
        host.unit = QStringLiteral("ft");
        Q_EMIT model->dataChanged(model->index(0), model->index(5));
        QTRY_COMPARE(combo.rowName(4), QStringLiteral("75 ft"));
        QCOMPARE(combo.name(), QStringLiteral("100 ft"));
        combo.clickRow(2);
        QCOMPARE(combo.name(), QStringLiteral("25 ft"));
        model->setIsVaries(true);
        QCOMPARE(combo.name(), QStringLiteral("*Varies*"));
        combo.turnWheel(-1);
        QCOMPARE(combo.row(), 6);
        model->setIsVaries(false);
        QCOMPARE(combo.name(), QStringLiteral("ByLayer"));
    }

    void anArrowHeadWithoutAnObjectIsShownByThePage()
    {
        ComboHost host;
        const auto model = host.arrowHeads(true);
        ShownCombo combo("ArrowHeadCombo", *model, "onChosen: index => model.objectName = index");
        QTRY_COMPARE(combo.pictureColor(), QColor(Qt::red));
        model->setCurrentIndex(2);
        QCOMPARE(combo.name(), QString());
        QVERIFY(combo.pictureColor() != QColor(Qt::red));
        combo.box()->setProperty("extraName", QStringLiteral("Mine"));
        combo.box()->setProperty("extraImage", ComboHost::picture(Qt::blue));
        QCOMPARE(combo.name(), QStringLiteral("Mine"));
        QTRY_COMPARE(combo.pictureColor(), QColor(Qt::blue));
        combo.open();
        QTRY_VERIFY(combo.rowItem(3));
        QTRY_COMPARE(combo.pictureColor(2), QColor(Qt::blue));
        QCOMPARE(combo.rowName(3), QStringLiteral("Select..."));
        host.chosenArrowHead = {QStringLiteral("_DOT"), {}, {}};
        combo.clickRow(3);
        QTRY_COMPARE(combo.name(), QStringLiteral("Dot"));
        QCOMPARE(model->objectName(), QString());
        combo.turnWheel(-1);
        QCOMPARE(model->objectName(), QStringLiteral("2"));
    }
};

PAGE_TEST_MAIN(TestControlsComboPictures)
#include "tst_controlscombopictures.moc"
