#include "shownpage.h"
#include "support/table.h"
#include "velm/models/menubuilder.h"
#include "velm/models/panelmenumodel.h"
#include "velm/models/rememberlastactionmenumodel.h"

#include <QPointer>
#include <QSignalSpy>

using namespace velm;
using velmtest::PageEngine;
using velmtest::Shown;

namespace {
/// A window with a menu that the keyboard has opened. The model's commands write their name to the log.
class OpenMenu
{
public:
    explicit OpenMenu(MenuModel& model)
        : m_shown(m_engine.load("Pane { id: root; implicitWidth: 480; implicitHeight: 380; property var model\n"
                                "property alias menu: menu; focus: true\n"
                                "function openMenu() { menu.openByKey(this, 10, 10) }\n"
                                "ModelMenu { id: menu; objectName: 'menu'; model: root.model } }",
                                {{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}}))
    {
        open();
    }

    QObject* menu() const { return m_shown.page()->property("menu").value<QObject*>(); }
    void open() { QMetaObject::invokeMethod(m_shown.page(), "openMenu"); }
    bool isOpen() const { return menu()->property("visible").toBool(); }
    int count() const { return menu()->property("count").toInt(); }
    QQuickItem* item(int row) const
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(menu(), "itemAt", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, row));
        return found;
    }
    /// The text of the row that Enter would choose, of the innermost menu.
    QString current() const
    {
        const QQuickItem* focus = m_shown.focusItem();
        return focus ? focus->property("text").toString() : QString();
    }
    Shown& shown() { return m_shown; }

private:
    PageEngine m_engine;
    Shown m_shown;
};

MenuData command(const char* text, QStringList& log, MenuData::EFlags flags = MenuData::Enabled)
{
    const QString name = QString::fromUtf8(text).remove(QLatin1Char('&'));
    return {QString::fromUtf8(text), std::function<void()>([&log, name] { log += name; }), {}, {}, {}, flags};
}
} // namespace

/// The menus of models as a user works them.
class TestControlsMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysChooseARow_data()
    {
        const auto row = velmtest::columns<QList<int>, QString>("keys", "chosen");
        // Title | Copy | Paste | Disabled | --- | Grid | Order > (Front, Deep > (Bottom)) | Empty > | Properties |
        // Print
        row("Enter takes the first row below the title", {Qt::Key_Return}, "Copy");
        row("Down goes on", {Qt::Key_Down, Qt::Key_Return}, "Paste");
        row("Up stays below the title", {Qt::Key_Up, Qt::Key_Enter}, "Copy");
        row("the separator is passed", {Qt::Key_G}, "Grid");
        row("Space takes a row, too", {Qt::Key_Down, Qt::Key_Space}, "Paste");
        row("a letter takes its row at once", {Qt::Key_A}, "Paste");
        row("Alt and the letter, too", {int(Qt::ALT) | Qt::Key_A}, "Paste");
        row("a letter of a disabled row is none", {Qt::Key_D}, "");
        row("a letter of two rows only goes there", {Qt::Key_P}, "");
        row("and Enter takes the one", {Qt::Key_P, Qt::Key_Return}, "Properties");
        row("or the letter again goes on", {Qt::Key_P, Qt::Key_P, Qt::Key_Return}, "Print");
        row("a letter that no row has is none", {Qt::Key_X}, "");
        row("a letter opens a sub-menu", {Qt::Key_O, Qt::Key_Return}, "Front");
        row("a letter in the sub-menu", {Qt::Key_O, Qt::Key_F}, "Front");
        row("Right opens a sub-menu", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return},
            "Front");
        row("a sub-menu in a sub-menu", {Qt::Key_O, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}, "Bottom");
        row("Left goes back", {Qt::Key_O, Qt::Key_Left, Qt::Key_Down, Qt::Key_Return}, "Properties");
    }
    void keysChooseARow()
    {
        QFETCH(QList<int>, keys);
        QFETCH(QString, chosen);
        QStringList log;
        MenuModel model;
        MenuBuilder(&model)
            .addTitle(QStringLiteral("Title"))
            .addItem(command("&Copy", log))
            .addItem(command("P&aste", log))
            .addItem(command("&Disabled", log, MenuData::NoFlags))
            .addSeparator()
            .addItem(command("&Grid", log, MenuData::Enabled | MenuData::Checkable))
            .addItem(command("&Order", log))
            .children()
            .addItem(command("&Front", log))
            .addItem(command("Deep", log))
            .children()
            .addItem(command("Bottom", log))
            .parent()
            .parent()
            .addItem(MenuData(QStringLiteral("Empty"), std::function<void()>(), QStringLiteral("submenu")))
            .addItem(command("&Properties && more", log))
            .addItem(command("&Print", log));
        OpenMenu open(model);
        QTRY_VERIFY(open.isOpen());
        QSignalSpy triggered(open.menu(), SIGNAL(triggered(QVariant)));
        for (const int key : keys) {
            open.shown().press(Qt::Key(key & ~int(Qt::ALT)), key & int(Qt::ALT) ? Qt::AltModifier : Qt::NoModifier);
        }
        if (chosen.isEmpty()) {
            QCoreApplication::processEvents();
            QVERIFY(log.isEmpty());
            QVERIFY(open.isOpen());
            return;
        }
        QTRY_COMPARE(log.size(), 1);
        QVERIFY2(log.first().startsWith(chosen), qPrintable(log.first()));
        QVERIFY(!open.isOpen());
        QCOMPARE(triggered.count(), 1);
        QVERIFY(triggered.first().first().value<QModelIndex>().isValid());
        // The page has the keyboard again.
        QTRY_COMPARE(open.shown().focusItem(), qobject_cast<QQuickItem*>(open.shown().page()));
    }

    void escapeClosesOneMenuAfterTheOther()
    {
        QStringList log;
        MenuModel model;
        MenuBuilder(&model).addItem(command("&Order", log)).children().addItem(command("&Front", log));
        OpenMenu open(model);
        open.shown().press(Qt::Key_Right);
        QTRY_COMPARE(open.current(), QStringLiteral("&Front"));
        open.shown().press(Qt::Key_Escape);
        QTRY_COMPARE(open.current(), QStringLiteral("&Order"));
        QVERIFY(open.isOpen());
        open.shown().press(Qt::Key_Escape);
        QTRY_VERIFY(!open.isOpen());
        QVERIFY(log.isEmpty());
    }

    void theMouseChoosesARow()
    {
        QStringList log;
        MenuModel model;
        MenuBuilder(&model)
            .addTitle(QStringLiteral("Title"))
            .addItem(command("Off", log, MenuData::NoFlags))
            .addItem(command("&On", log));
        OpenMenu open(model);
        QTRY_VERIFY(open.item(2));
        open.shown().click(open.item(0));
        open.shown().click(open.item(1));
        QCoreApplication::processEvents();
        QVERIFY(open.isOpen());
        open.shown().click(open.item(2));
        QTRY_COMPARE(log, QStringList{QStringLiteral("On")});
        QVERIFY(!open.isOpen());
    }

    void aRowShowsWhatTheModelSays()
    {
        QStringList log;
        MenuModel model;
        MenuData row = command("&Grid", log, MenuData::Enabled | MenuData::Checkable | MenuData::Checked);
        row.shortcut = QStringLiteral("F7");
        row.tooltip = QStringLiteral("Shows the grid");
        row.icon = QStringLiteral("missing.png");
        MenuData picture = command("Picture", log);
        picture.bitmap = std::make_unique<QImage>(4, 4, QImage::Format_RGB32);
        picture.bitmap->fill(Qt::red);
        MenuBuilder(&model)
            .addItem(row)
            .addItem(picture)
            .addItem(command("Off", log, MenuData::NoFlags))
            .addItem(command("&More", log))
            .children()
            .addItem(command("Below", log));
        OpenMenu open(model);
        QTRY_COMPARE(open.count(), 4);
        // The mnemonic of a sub-menu, too, which a menu's title has lost.
        QCOMPARE(open.item(3)->property("text").toString(), "&More");
        QVERIFY(open.item(0)->property("checked").toBool());
        QVERIFY(open.item(0)->property("markColumn").toBool());
        QVERIFY(open.item(0)->property("pictureColumn").toBool());
        QVERIFY(!open.item(1)->property("checkable").toBool());
        QVERIFY(!open.item(2)->isEnabled());
        const auto* caption = open.item(0)->property("contentItem").value<QQuickItem*>();
        QStringList texts;
        for (const QQuickItem* child : caption->childItems())
            texts += child->property("text").toString();
        QVERIFY(texts.contains(QStringLiteral("F7")));
        // The bitmap's red is on the screen.
        const QQuickItem* image = open.item(1)->property("contentItem").value<QQuickItem*>()->childItems().first();
        QTRY_COMPARE(image->property("status").toInt(), 1);
        const QPoint centre = image->mapToScene(QPointF(8, 8)).toPoint();
        QTRY_COMPARE(open.shown().window()->grabWindow().pixelColor(centre), QColor(Qt::red));
    }

    void aMenuIsReadEachTimeItOpens()
    {
        QStringList log;
        MenuModel model;
        MenuBuilder(&model).addItem(command("One", log, MenuData::Enabled | MenuData::Checkable));
        OpenMenu open(model);
        QTRY_VERIFY(open.isOpen());
        open.shown().press(Qt::Key_Return);
        QTRY_COMPARE(log.size(), 1);
        // A checkable row is checked by its owner alone.
        open.open();
        QVERIFY(!open.item(0)->property("checked").toBool());
        open.shown().press(Qt::Key_Escape);
        QTRY_VERIFY(!open.isOpen());
        model.setChecked(model.index(0, 0), true);
        MenuBuilder(&model).addItem(command("Two", log)).addItem(command("Three", log));
        open.open();
        QTRY_VERIFY(open.isOpen());
        QCOMPARE(open.count(), 2);
        open.shown().press(Qt::Key_Return);
        QTRY_COMPARE(log.last(), QStringLiteral("Two"));
    }

    void theItemsOfAnOpenMenuAreNotCollected()
    {
        QStringList log;
        MenuModel model;
        MenuBuilder(&model).addItem(command("Copy", log)).addSeparator().addItem(command("Paste", log));
        OpenMenu open(model);
        QTRY_VERIFY(open.isOpen());
        const QPointer<QQuickItem> first = open.item(0);
        const QPointer<QQuickItem> line = open.item(1);
        qmlEngine(open.menu())->collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(first && line);
        QCOMPARE(open.current(), QString("Copy"));
    }

    void anOpenMenuFollowsItsModel()
    {
        QStringList log;
        MenuModel model;
        MenuBuilder(&model).addItem(command("One", log, MenuData::Enabled | MenuData::Checkable));
        OpenMenu open(model);
        model.setChecked(model.index(0, 0), true);
        QTRY_VERIFY(open.item(0)->property("checked").toBool());
        // Rows that come or go close it.
        model.appendItem({}, command("&Two", log));
        QTRY_VERIFY(!open.isOpen());
        QVERIFY(log.isEmpty());
        // A page may still fill the menu when it is about to open.
        connect(open.menu(), SIGNAL(aboutToShow()), this, SLOT(fill()));
        m_fill = [&] { MenuBuilder(&model).addItem(command("&New", log)); };
        open.open();
        QTRY_VERIFY(open.isOpen());
        QCOMPARE(open.count(), 1);
        open.shown().press(Qt::Key_N);
        QTRY_COMPARE(log, QStringList{QStringLiteral("New")});
    }

    void aCommandMayRebuildTheMenu()
    {
        QStringList log;
        MenuModel model;
        std::function<void()> rebuild;
        int made = 0;
        const auto fill = [&] {
            ++made;
            MenuBuilder(&model)
                .addItem(MenuData(QStringLiteral("&Sub"), std::function<void()>()))
                .children()
                .addItem(MenuData(QStringLiteral("&Rebuild"), rebuild));
        };
        rebuild = fill;
        fill();
        OpenMenu open(model);
        for (int round = 2; round < 5; ++round) {
            open.shown().press(Qt::Key_S);
            open.shown().press(Qt::Key_R);
            QTRY_COMPARE(made, round);
            QVERIFY(!open.isOpen());
            open.open();
            QTRY_VERIFY(open.isOpen());
        }
        // What was chosen is forgotten when its row goes before its command could run.
        QMetaObject::invokeMethod(open.menu(), "choose",
                                  Q_ARG(QVariant, QVariant(model.index(0, 0, model.index(0, 0)))));
        model.reset();
        QCoreApplication::processEvents();
        QCOMPARE(made, 4);
    }

    void aSplitButtonRepeatsTheLastAction()
    {
        QStringList log;
        RememberLastActionMenuModel model;
        MenuBuilder(&model)
            .addTitle(QStringLiteral("Title"))
            .addItem(command("&Line", log))
            .addItem(command("&Arc", log));
        PageEngine engine;
        Shown shown(engine.load("Pane { id: root; property var model\n"
                                "SplitButton { focus: true; model: root.model } }",
                                {{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}}));
        QQuickItem* action = shown.find("action");
        QObject* menu = shown.page()->findChild<QObject*>(QStringLiteral("menu"));
        QTRY_VERIFY(action->hasActiveFocus());
        QCOMPARE(action->property("text").toString(), QStringLiteral("&Line"));
        shown.press(Qt::Key_Space);
        shown.press(Qt::Key_Return);
        QCOMPARE(log, QStringList({QStringLiteral("Line"), QStringLiteral("Line")}));
        // Both ways to open the menu.
        for (const auto modifier : {Qt::NoModifier, Qt::AltModifier}) {
            log.clear();
            shown.press(Qt::Key_Down, modifier);
            QTRY_VERIFY(menu->property("visible").toBool());
            shown.press(Qt::Key_Down);
            shown.press(Qt::Key_Return);
            QTRY_COMPARE(log, QStringList{QStringLiteral("Arc")});
        }
        QCOMPARE(action->property("text").toString(), QStringLiteral("&Arc"));
        shown.click(action);
        QCOMPARE(log, QStringList({QStringLiteral("Arc"), QStringLiteral("Arc")}));
        shown.click(shown.find("arrow"));
        QTRY_VERIFY(menu->property("visible").toBool());
        shown.press(Qt::Key_L);
        QTRY_COMPARE(action->property("text").toString(), QStringLiteral("&Line"));
        model.reset();
        model.updateState();
        QVERIFY(!action->isEnabled());
    }

    void aPanelMenuReadsItsMarksAnew()
    {
        int runs = 0;
        PanelMenuModel model;
        model.append(PanelMenuItem{QStringLiteral("&Hidden ones"), [&runs] { ++runs; }, false, true, false});
        model.append(PanelMenuItem{QStringLiteral("Off"), [] {}, true});
        PageEngine engine;
        Shown shown(engine.load("Pane { id: root; property var model: null\n"
                                "PanelTitle { width: 200; title: 'Sheets'; menuModel: root.model } }"));
        QQuickItem* button = shown.find("panelMenuButton");
        QVERIFY(!button->isVisible());
        shown.page()->setProperty("model", QVariant::fromValue<QObject*>(&model));
        QTRY_VERIFY(button->isVisible());
        QObject* menu = shown.page()->findChild<QObject*>(QStringLiteral("panelMenu"));
        const auto item = [&](int row) {
            QQuickItem* found = nullptr;
            QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, row));
            return found;
        };
        for (int round = 0; round < 3; ++round) {
            QTRY_VERIFY(button->width() > 0);
            shown.click(button);
            QTRY_VERIFY(menu->property("visible").toBool());
            QCOMPARE(item(0)->property("checked").toBool(), round % 2 == 1);
            QVERIFY(!item(1)->isEnabled());
            shown.press(Qt::Key_H);
            QTRY_COMPARE(runs, round + 1);
            QTRY_VERIFY(!menu->property("visible").toBool());
        }
        // By the keyboard alone.
        shown.press(Qt::Key_Tab);
        QVERIFY(button->hasActiveFocus());
        shown.press(Qt::Key_Space);
        QTRY_VERIFY(menu->property("visible").toBool());
        shown.press(Qt::Key_Return);
        QTRY_COMPARE(runs, 4);
    }

public Q_SLOTS: // no test
    void fill() { m_fill(); }

private:
    std::function<void()> m_fill;
};

PAGE_TEST_MAIN(TestControlsMenu)
#include "tst_controlsmenu.moc"
