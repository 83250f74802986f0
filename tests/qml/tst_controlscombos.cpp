#include "showncombo.h"
#include "support/table.h"
#include "velm/units/settings.h"

#include <QSignalSpy>

using namespace velm;
using velmtest::ComboHost;
using velmtest::ShownCombo;

/// The combos of drawing properties as a user works them.
class TestControlsCombos : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysChooseAndOpen_data()
    {
        const auto row = velmtest::columns<int, QList<int>, int, bool>("start", "keys", "row", "open");
        const int alt = Qt::ALT;
        // With the varies row 9 and the load row 10.
        row("Down", 2, {Qt::Key_Down}, 3, false);
        row("Up stops at the first row", 0, {Qt::Key_Up}, 0, false);
        row("Down stops before the varies row", 8, {Qt::Key_Down}, 8, false);
        row("Up leaves the varies row", 9, {Qt::Key_Up}, 8, false);
        row("Home", 5, {Qt::Key_Home}, 0, false);
        row("End passes what is no value", 1, {Qt::Key_End}, 8, false);
        row("a letter goes on behind the row", 0, {Qt::Key_B}, 1, false);
        row("the same letter again", 0, {Qt::Key_B, Qt::Key_B}, 6, false);
        row("letters narrow the search", 2, {Qt::Key_B, Qt::Key_Y, Qt::Key_L}, 0, false);
        row("no row begins so", 2, {Qt::Key_S}, 2, false);
        row("F4 opens", 2, {Qt::Key_F4, Qt::Key_Down}, 2, true);
        row("F4 closes", 2, {Qt::Key_F4, Qt::Key_Down, Qt::Key_F4}, 2, false);
        row("Alt+Down opens and Enter chooses", 2, {alt | Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}, 3, false);
        row("Space opens and chooses", 2, {Qt::Key_Space, Qt::Key_Up, Qt::Key_Space}, 1, false);
        row("Escape keeps the row", 2, {Qt::Key_F4, Qt::Key_End, Qt::Key_Escape}, 2, false);
        row("letters in the list", 2, {Qt::Key_F4, Qt::Key_M, Qt::Key_Return}, 7, false);
        row("the varies row is passed in the list, the load row is not", 2,
            {Qt::Key_F4, Qt::Key_End, Qt::Key_Up, Qt::Key_Return}, 8, false);
    }
    void keysChooseAndOpen()
    {
        QFETCH(const int, start);
        QFETCH(const QList<int>, keys);
        QFETCH(const int, row);
        QFETCH(const bool, open);
        ComboHost host;
        const auto model = host.colours(true);
        model->setCurrentIndex(start);
        ShownCombo combo("ColorCombo", *model);
        QSignalSpy chosen(model.get(), &IColorModel::colorChanged);
        for (const int key : keys)
            combo.shown().press(Qt::Key(key & ~Qt::ALT), key & Qt::ALT ? Qt::AltModifier : Qt::NoModifier);
        QCOMPARE(combo.row(), row);
        QCOMPARE(model->getCurrentIndex(), row);
        QCOMPARE(combo.isOpen(), open);
        QCOMPARE(chosen.isEmpty(), row == start);
    }

    void theWheelNeverReachesTheLastRows()
    {
        ComboHost host;
        const auto model = host.colours(true);
        ShownCombo combo("ColorCombo", *model);
        QCOMPARE(combo.row(), -1);
        combo.turnWheel(-1);
        QCOMPARE(combo.row(), 0);
        combo.turnWheel(-3);
        QCOMPARE(combo.row(), 3);
        combo.turnWheel(1);
        QCOMPARE(combo.row(), 2);
        combo.turnWheel(-30);
        QCOMPARE(combo.row(), 8);
        combo.open();
        combo.turnWheel(1);
        QCOMPARE(combo.row(), 8);
        combo.shown().press(Qt::Key_Escape);
        model->setCurrentIndex(9);
        combo.turnWheel(1);
        QCOMPARE(combo.row(), 8);
    }

    void theBoxFollowsItsModelAlone()
    {
        ComboHost host;
        const auto model = host.arrowHeads();
        ShownCombo combo("ArrowHeadCombo", *model, "property int wanted: -1; onChosen: index => wanted = index");
        QCOMPARE(combo.name(), QStringLiteral("Closed"));
        // The owner need not do what the user wants.
        combo.shown().press(Qt::Key_Down);
        QCOMPARE(combo.value("wanted").toInt(), 1);
        QCOMPARE(combo.row(), 0);
        QCOMPARE(combo.name(), QStringLiteral("Closed"));
        model->setCurrentIndex(1);
        QCOMPARE(combo.name(), QStringLiteral("Dot"));
        model->setCurrentIndex(-1);
        QCOMPARE(combo.name(), QString());
        QCOMPARE(combo.row(), -1);
        host.chosenArrowHead.internalName = QStringLiteral("_DOT");
        model->showArrowHeadsDialog(0);
        QCOMPARE(combo.name(), QStringLiteral("Dot"));

        const auto colours = host.colours();
        combo.shown().page()->setProperty("model", QVariant());
        QCOMPARE(combo.row(), -1);
        combo.shown().press(Qt::Key_F4);
        QVERIFY(!combo.isOpen());
    }

    void theLoadRowOpensItsDialogOnceTheListHasGone()
    {
        ComboHost host;
        const auto model = host.colours();
        model->setCurrentIndex(4);
        ShownCombo combo("ColorCombo", *model);
        host.dialogs.colors = {std::nullopt, OdCmColor::fromRGB(10, 20, 30)};
        for (const char* name : {"Green", "Picked"}) {
            host.dialogs.log.clear();
            combo.open();
            QTRY_VERIFY(combo.rowItem(9));
            QCOMPARE(combo.rowName(9), QStringLiteral("Select colour..."));
            combo.clickRow(9);
            QTRY_COMPARE(host.dialogs.log.size(), 1);
            QVERIFY(!combo.isOpen());
            QCOMPARE(combo.name(), QString::fromLatin1(name));
        }
        QCOMPARE(combo.row(), 9);
        QCOMPARE(combo.value("count").toInt(), 11);
    }

    void lineTypesAreLoadedFromTheList()
    {
        ComboHost host;
        const auto lineTypes = host.lineTypes();
        lineTypes->setPropertiesAction([&] { host.dialogs.log += QStringLiteral("properties"); });
        lineTypes->refresh(false, lineTypes->lineTypeId(3).value());
        lineTypes->setCurrentLineType(lineTypes->lineTypeId(3).value());
        ShownCombo lines("LineTypeCombo", *lineTypes);
        QCOMPARE(lines.name(), QStringLiteral("Dashed"));
        lines.turnWheel(-1);
        QCOMPARE(lines.row(), 3);
        host.dialogs.log.clear();
        lines.shown().press(Qt::Key_F4);
        lines.shown().press(Qt::Key_End);
        lines.shown().press(Qt::Key_Return);
        QTRY_COMPARE(host.dialogs.log, QStringList{QStringLiteral("properties")});
        bool wasOpen = true;
        host.dialogs.loadLineTypes = [&](OdArray<OdString>& loaded) {
            wasOpen = lines.isOpen();
            host.drawing->addLinetype(L"Dotted");
            loaded.append(L"Dotted");
            return true;
        };
        lines.shown().press(Qt::Key_F4);
        lines.shown().press(Qt::Key_End);
        lines.shown().press(Qt::Key_Up);
        lines.shown().press(Qt::Key_Return);
        QTRY_COMPARE(lines.name(), QStringLiteral("Dotted"));
        QVERIFY(!wasOpen);
    }

    void theListFitsTheScreenAndScrolls()
    {
        ComboHost host;
        host.weights = 100;
        const auto model = host.lineWeights();
        model->setCurrentIndex(95);
        ShownCombo combo("LineWeightCombo", *model);
        const QRect screen = combo.shown().window()->screen()->geometry();
        // The list is shown where there is more room.
        for (const bool below : {true, false}) {
            combo.shown().window()->setPosition(20, below ? 50 : screen.height() - 130);
            combo.open();
            const QRect list = combo.list()->geometry();
            QVERIFY(screen.contains(list));
            QVERIFY(list.height() > screen.height() / 2);
            const QRect box(combo.box()->mapToGlobal(QPointF()).toPoint(), combo.box()->size().toSize());
            QCOMPARE(below ? list.top() - box.bottom() : box.top() - list.bottom(), 2);
            QVERIFY(list.width() >= box.width());
            QTRY_VERIFY(combo.rowItem(95));
            QVERIFY(combo.rowItem(95)->property("highlighted").toBool());
            QVERIFY(combo.rows()->property("contentY").toDouble() > 0);
            combo.shown().press(Qt::Key_PageUp);
            const int shownRows = (list.height() - 2) / 24;
            QCOMPARE(combo.highlighted(), 95 - (shownRows - 1));
            combo.shown().press(Qt::Key_Home);
            QTRY_VERIFY(combo.rowItem(0));
            combo.shown().press(Qt::Key_Escape);
        }
        host.weights = 2;
        const auto few = host.lineWeights();
        combo.shown().page()->setProperty("model", QVariant::fromValue<QObject*>(few.get()));
        combo.shown().window()->setPosition(20, screen.height() - 130);
        combo.open();
        QCOMPARE(combo.list()->height(), 3 * 24 + 2);
    }

    void theListClosesByWhicheverRoad_data()
    {
        const auto row = velmtest::columns<int>("road");
        row("the box is clicked again", 0);
        row("another place of the page is clicked", 1);
        row("another window gets the keyboard", 2);
        row("the box is disabled", 3);
        row("the box is hidden", 4);
        row("the document is closed", 5);
        row("the linetypes change", 6);
        row("the model goes", 7);
    }
    void theListClosesByWhicheverRoad()
    {
        QFETCH(const int, road);
        ComboHost host;
        auto model = host.lineTypes();
        ShownCombo combo("LineTypeCombo", *model);
        combo.open();
        QVERIFY(combo.isOpen());
        QTRY_VERIFY(combo.rowItem(4));
        QWindow other;
        if (road == 0) {
            combo.open();
        } else if (road == 1) {
            combo.shown().click(combo.shown().find("other"));
        } else if (road == 2) {
            other.show();
            other.requestActivate();
        } else if (road == 3) {
            combo.box()->setEnabled(false);
        } else if (road == 4) {
            combo.box()->setVisible(false);
        } else if (road == 5) {
            // Nothing is left of a choice that was just made.
            QMetaObject::invokeMethod(combo.box(), "finish", Q_ARG(int, 4));
            QMetaObject::invokeMethod(combo.box(), "open");
            QVERIFY(combo.isOpen());
            model->setDatabase(false, nullptr);
            host.drawing.reset();
        } else if (road == 6) {
            host.drawing->addLinetype(L"Dotted");
            model->refresh(false, {});
        } else {
            model.reset();
        }
        QTRY_VERIFY(!combo.isOpen());
        QCOMPARE(combo.name(), road == 5 || road == 7 ? QString() : QStringLiteral("ByBlock"));
        QCOMPARE(combo.value("count").toInt(), road == 5 || road == 7 ? 0 : road == 6 ? 6 : 5);
        QCoreApplication::processEvents();
        QVERIFY(host.dialogs.log.isEmpty());
    }

    void theEngineLeavesTheRowsToTheirModel()
    {
        ComboHost host;
        const auto colours = host.colours();
        const auto lineTypes = host.lineTypes();
        const auto weights = host.lineWeights();
        const auto arrowHeads = host.arrowHeads();
        QList<QPointer<QObject>> rows;
        velmtest::PageEngine engine;
        const std::unique_ptr<QObject> page(engine.load(
            "QtObject { property var models; function read(): int { let count = 0; for (const model of models)\n"
            "  for (let row = 0; row < model.rowCount(); ++row) if (model.data(model.index(row, 0), 0)) ++count;\n"
            "  gc(); return count } }"));
        QVERIFY(page);
        QVariantList models;
        for (QAbstractItemModel* model : std::initializer_list<QAbstractItemModel*>{colours.get(), lineTypes.get(),
                                                                                    weights.get(), arrowHeads.get()}) {
            models += QVariant::fromValue<QObject*>(model);
            for (int row = 0; row < model->rowCount(); ++row)
                rows += model->data(model->index(row, 0), 0).value<QObject*>();
        }
        page->setProperty("models", models);
        int count = 0;
        QVERIFY(QMetaObject::invokeMethod(page.get(), "read", Q_RETURN_ARG(int, count)));
        QCOMPARE(count, rows.size());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!rows.contains(nullptr));
    }

    void aTipComesInAWindowOfItsOwn()
    {
        Settings::instance()->setTooltipDelay(1);
        ComboHost host;
        const auto model = host.colours();
        ShownCombo combo("ColorCombo", *model);
        const auto* tip = combo.box()->findChild<QQuickWindow*>(QStringLiteral("tip"));
        QVERIFY(tip);
        const auto hover = [&](QPoint place) {
            QTest::mouseMove(combo.shown().window(), place - QPoint(2, 0));
            QTest::mouseMove(combo.shown().window(), place);
        };
        hover(combo.centreOf(combo.box()));
        QTRY_VERIFY(tip->isVisible());
        combo.open();
        QVERIFY(!tip->isVisible());
        combo.shown().press(Qt::Key_Escape);
        hover(combo.centreOf(combo.box()));
        QTRY_VERIFY(tip->isVisible());
        hover(QPoint(250, 180));
        QTRY_VERIFY(!tip->isVisible());
        Settings::instance()->setTooltips(false);
        hover(combo.centreOf(combo.box()));
        QTRY_VERIFY(combo.value("hovered").toBool());
        QVERIFY(!combo.box()->findChild<QObject*>(QStringLiteral("tipDelay"))->property("running").toBool());
        Settings::instance()->setTooltips(true);
    }
};

PAGE_TEST_MAIN(TestControlsCombos)
#include "tst_controlscombos.moc"
