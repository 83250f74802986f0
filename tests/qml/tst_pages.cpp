#include "shownpage.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "support/table.h"
#include "velm/dialogs/namedialogcontroller.h"
#include "velm/units/settings.h"

#include <QQmlComponent>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace velm;
using velmtest::Shown;

/// The pages and the shared controls as a user works them.
class TestPages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_engine.emplace(); }
    void cleanup() { m_engine.reset(); }

    void theNameDialogWritesWhatIsTyped()
    {
        workNameDialog([](Shown& shown, BaseDialogController& controller, QObject& page) {
            QCOMPARE(page.property("title").toString(), QStringLiteral("Save Filter"));
            QQuickItem* field = shown.find("name");
            QCOMPARE(shown.focusItem(), field);
            QCOMPARE(field->property("selectedText").toString(), QStringLiteral("old"));
            QCOMPARE(shown.find("accept")->property("text").toString(), QStringLiteral("&Save"));
            // The first letter replaces the selected name.
            shown.type("new");
            QCOMPARE(controller.property("name").toString(), QStringLiteral("new"));
            // Nothing writes a name back into the field that the user edits.
            controller.setProperty("name", QStringLiteral("other"));
            Q_EMIT static_cast<NameDialogController&>(controller).nameChanged();
            QCOMPARE(field->property("text").toString(), QStringLiteral("new"));
            shown.press(Qt::Key_Backspace);
            QCOMPARE(controller.property("name").toString(), QStringLiteral("ne"));
        });
    }

    void theNameDialogAsksForItsEnd_data()
    {
        const auto row = velmtest::columns<QList<int>, QString, QString>("keys", "clicked", "asked");
        row("Enter accepts", {Qt::Key_Return}, QString(), "accepted");
        row("Enter of the keypad accepts", {Qt::Key_Enter}, QString(), "accepted");
        row("Escape rejects", {Qt::Key_Escape}, QString(), "rejected");
        row("Enter on the action button accepts", {Qt::Key_Tab, Qt::Key_Return}, QString(), "accepted");
        row("Enter on Cancel rejects", {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}, QString(), "rejected");
        row("Space on Cancel rejects", {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}, QString(), "rejected");
        row("a click on the action button accepts", {}, "accept", "accepted");
        row("a click on Cancel rejects", {}, "reject", "rejected");
    }
    void theNameDialogAsksForItsEnd()
    {
        QFETCH(QList<int>, keys);
        QFETCH(QString, clicked);
        QFETCH(QString, asked);
        workNameDialog([&](Shown& shown, BaseDialogController&, QObject& page) {
            QSignalSpy accepted(&page, SIGNAL(accepted()));
            QSignalSpy rejected(&page, SIGNAL(rejected()));
            for (const int key : keys)
                shown.press(Qt::Key(key));
            if (!clicked.isEmpty())
                shown.click(shown.find(clicked.toLatin1().constData()));
            QCOMPARE(accepted.count(), asked == QStringLiteral("accepted") ? 1 : 0);
            QCOMPARE(rejected.count(), asked == QStringLiteral("rejected") ? 1 : 0);
        });
    }

    void anIconButtonIsClickedByMouseAndKeyboard()
    {
        Shown shown(m_engine->load("Pane { IconButton { objectName: 'button'; mark: 'add'; text: '&Add' } }"));
        QQuickItem* button = shown.find("button");
        QSignalSpy clicked(button, SIGNAL(clicked()));
        shown.click(button);
        QCOMPARE(clicked.count(), 1);
        // The mouse leaves the keyboard where it was.
        QVERIFY(!button->hasActiveFocus());
        shown.press(Qt::Key_Tab);
        QVERIFY(button->hasActiveFocus());
        shown.press(Qt::Key_Space);
        QCOMPARE(clicked.count(), 2);
        button->setEnabled(false);
        shown.click(button);
        QCOMPARE(clicked.count(), 2);
    }

    void aToolTipWaitsForTheSettings()
    {
        Settings::instance()->setTooltipDelay(0);
        Settings::instance()->setTooltips(false);
        Shown shown(
            m_engine->load("Pane { property bool shown: button.ToolTip.toolTip.visible\n"
                           "property string tip: button.ToolTip.toolTip.text\n"
                           "IconButton { id: button; objectName: 'button'; text: '&Add'; hoverEnabled: true } }"));
        QObject* root = shown.page();
        const QPoint centre = shown.find("button")->mapToScene(QPointF(12, 12)).toPoint();
        QTest::mouseMove(shown.window(), centre + QPoint(0, 100));
        QTest::mouseMove(shown.window(), centre);
        QTRY_VERIFY(shown.find("button")->property("hovered").toBool());
        QVERIFY(!root->property("shown").toBool());
        Settings::instance()->setTooltips(true);
        QTRY_VERIFY(root->property("shown").toBool());
        QCOMPARE(root->property("tip").toString(), QStringLiteral("Add"));
        Settings::instance()->setTooltips(false);
        QTRY_VERIFY(!root->property("shown").toBool());
    }

    void aTipShowsItsTextAsItIs()
    {
        Shown shown(m_engine->load(
            "Item { implicitWidth: 300; implicitHeight: 200\n"
            "property bool wanted: false; ToolTip.text: '<b>x</b>'; ToolTip.visible: wanted; ToolTip.delay: 0\n"
            "property real tipWidth: ToolTip.toolTip.contentItem.implicitWidth\n"
            "property real plainWidth: plain.implicitWidth\n"
            "Label { id: plain; font: parent.ToolTip.toolTip.font; text: '<b>x</b>'\n"
            "textFormat: Text.PlainText } }"));
        shown.page()->setProperty("wanted", true);
        QTRY_COMPARE(shown.page()->property("tipWidth"), shown.page()->property("plainWidth"));
    }

    void aToolIconFollowsThemeAndName()
    {
        std::unique_ptr<QObject> page(m_engine->load("import Tandolin.API.Core.Themes.Engine\n"
                                                     "Item { ToolIcon { objectName: 'icon'; size: 30 }\n"
                                                     "function setTheme(theme: int) { Theme.setColorTheme(theme) } }"));
        QVERIFY(page);
        QQuickItem* icon = page->findChild<QQuickItem*>(QStringLiteral("icon"));
        QQuickItem* picture = icon->childItems().first();
        const auto shown = [picture] { return picture->property("source").toUrl().toString(); };
        QCOMPARE(icon->implicitWidth(), 30.0);
        QCOMPARE(shown(), QString());
        icon->setProperty("name", QStringLiteral("line"));
        QCOMPARE(shown(), QStringLiteral("qrc:/toolicons/32/dark/line.png"));
        QCOMPARE(picture->implicitWidth(), 32.0);
        QMetaObject::invokeMethod(page.get(), "setTheme", Q_ARG(int, 1));
        QCOMPARE(shown(), QStringLiteral("qrc:/toolicons/32/light/line.png"));
        icon->setProperty("size", 100);
        QCOMPARE(shown(), QStringLiteral("qrc:/toolicons/64/light/line.png"));
        // No warning either, and nothing of the former icon.
        icon->setProperty("name", QStringLiteral("no such"));
        QCOMPARE(shown(), QString());
        QCOMPARE(picture->implicitWidth(), 0.0);
    }

    void theSearchFieldIsEmptied()
    {
        Shown shown(m_engine->load("Pane { property int escaped: 0; Keys.onEscapePressed: escaped++\n"
                                   "SearchField { objectName: 'field'; focus: true } }"));
        QObject* root = shown.page();
        QQuickItem* field = shown.find("field");
        QTRY_VERIFY(field->hasActiveFocus());
        shown.type("wall");
        shown.press(Qt::Key_Escape);
        QCOMPARE(field->property("text").toString(), QString());
        QCOMPARE(root->property("escaped").toInt(), 0);
        // An empty field leaves Escape to the page.
        shown.press(Qt::Key_Escape);
        QCOMPARE(root->property("escaped").toInt(), 1);
    }

    void aFieldHasAMenuToEditItsText()
    {
        Shown shown(m_engine->load("Pane { TextField { objectName: 'field'; text: 'wall' } }"));
        QQuickItem* field = shown.find("field");
        const QPoint inside = field->mapToScene(QPointF(8, 12)).toPoint();
        for (int round = 0; round < 2; ++round) {
            QTest::mouseClick(shown.window(), Qt::RightButton, {}, inside);
            QTRY_VERIFY(shown.focusItem() != field);
            // "Select All" is the last entry.
            for (int entry = 0; entry < 4; ++entry)
                shown.press(Qt::Key_Down);
            shown.press(Qt::Key_Return);
            QCOMPARE(field->property("selectedText").toString(), QStringLiteral("wall"));
            QTRY_VERIFY(field->findChildren<QObject*>(QStringLiteral("editMenu")).isEmpty());
            QMetaObject::invokeMethod(field, "deselect");
        }
    }

    void aListIsWalkedByKeyboard_data()
    {
        const auto row = velmtest::columns<int, QList<int>, int>("start", "keys", "row");
        // Alpha, beta, Bravo, charlie, bravissimo, delta
        row("Down moves on", 1, {Qt::Key_Down}, 2);
        row("Up stops at the first row", 0, {Qt::Key_Up}, 0);
        row("Down stops at the last row", 5, {Qt::Key_Down}, 5);
        row("Down without a current row takes the first", -1, {Qt::Key_Down}, 0);
        row("Home goes to the first row", 4, {Qt::Key_Home}, 0);
        row("End goes to the last row", 1, {Qt::Key_End}, 5);
        row("a page is what fits", 0, {Qt::Key_PageDown}, 3);
        row("a page up stops at the first row", 2, {Qt::Key_PageUp}, 0);
        row("a letter finds the next row", 1, {Qt::Key_B}, 2);
        row("a letter finds a row from none", -1, {Qt::Key_A}, 0);
        row("a letter goes round the end", 4, {Qt::Key_A}, 0);
        row("the same letter again goes on", 0, {Qt::Key_B, Qt::Key_B, Qt::Key_B}, 4);
        row("letters narrow the search", 0, {Qt::Key_B, Qt::Key_R, Qt::Key_A, Qt::Key_V, Qt::Key_I}, 4);
        row("letters that nothing begins with stay", 3, {Qt::Key_X}, 3);
        row("an arrow ends the letters", 0, {Qt::Key_B, Qt::Key_Home, Qt::Key_D}, 5);
    }
    void aListIsWalkedByKeyboard()
    {
        QFETCH(int, start);
        QFETCH(QList<int>, keys);
        QFETCH(int, row);
        Shown shown(m_engine->load("PlainListView { height: 100; implicitHeight: 100\n"
                                   "model: ['Alpha', 'beta', 'Bravo', 'charlie', 'bravissimo', 'delta'] }"));
        QObject* list = shown.page();
        list->setProperty("currentIndex", start);
        for (const int key : keys)
            shown.press(Qt::Key(key));
        QCOMPARE(list->property("currentIndex").toInt(), row);
    }

    void aListTellsWhatIsActivated()
    {
        Shown shown(m_engine->load("PlainListView { model: ListModel { ListElement { title: 'One' }\n"
                                   "ListElement { title: 'Two words' } }\n textRole: 'title' }"));
        QObject* list = shown.page();
        QSignalSpy activated(list, SIGNAL(activated(int)));
        shown.type("two w");
        QCOMPARE(list->property("currentIndex").toInt(), 1);
        shown.press(Qt::Key_Return);
        QCOMPARE(activated.takeLast(), QVariantList{1});
        QTest::mouseDClick(shown.window(), Qt::LeftButton, {}, QPoint(20, 12));
        QCOMPARE(list->property("currentIndex").toInt(), 0);
        QCOMPARE(activated.takeLast(), QVariantList{0});
        // Without a current row there is nothing to activate.
        list->setProperty("currentIndex", -1);
        shown.press(Qt::Key_Return);
        QVERIFY(activated.isEmpty());
    }

    void aListFindsRowsOfAnItemModel()
    {
        QStandardItemModel model;
        for (int row = 0; row < 200; ++row)
            model.appendRow(new QStandardItem(QStringLiteral("Layer %1").arg(row)));
        model.item(190)->setText(QStringLiteral("Zero"));
        Shown shown(m_engine->load("PlainListView { textRole: 'display' }"));
        QObject* list = shown.page();
        list->setProperty("model", QVariant::fromValue<QObject*>(&model));
        QCOMPARE(list->property("count").toInt(), 200);
        shown.type("z");
        QCOMPARE(list->property("currentIndex").toInt(), 190);
        model.removeRows(0, 100);
        QTRY_COMPARE(list->property("currentIndex").toInt(), 90);
        // Keys find nothing to do in an empty list.
        model.clear();
        QTRY_COMPARE(list->property("count").toInt(), 0);
        const QVariant row = list->property("currentIndex");
        shown.type("z");
        shown.press(Qt::Key_End);
        QCOMPARE(list->property("currentIndex"), row);
    }

    void aListBeginsAtTheRowThatItIsGiven()
    {
        const std::unique_ptr<QObject> page(m_engine->load(
            "PlainListView { currentIndex: 2\n"
            "model: { let rows = []; for (let i = 0; i < 9; ++i) rows.push('Row ' + i); return rows; } }"));
        QVERIFY(page);
        QCOMPARE(page->property("currentIndex").toInt(), 2);
        QCOMPARE(page->property("count").toInt(), 9);
    }

    void mnemonicsPressTheirButtons()
    {
        Shown shown(m_engine->load("Pane { DialogButtons { objectName: 'buttons'; acceptText: '&Save' } }"));
        QSignalSpy accepted(shown.find("buttons"), SIGNAL(accepted()));
        QSignalSpy rejected(shown.find("buttons"), SIGNAL(rejected()));
        shown.press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(rejected.count(), 0);
        shown.press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(rejected.count(), 1);
    }

private:
    /// Shows the page in the step of a name dialog and works it.
    void workNameDialog(const std::function<void(Shown&, BaseDialogController&, QObject&)>& work)
    {
        velmtest::FakeGuiController host;
        ExternalFunctions functions;
        functions.guiController = [&host] { return &host; };
        functions.getUIFullUrl = [](const QString& page) { return getQUrl(page, QStringLiteral("Tandolin.UI"), {}); };
        const velmtest::ScopedExternalFunctions scope(functions);
        bool worked = false;
        const auto step = [&](BaseDialogController& controller) {
            QQmlComponent component(m_engine->get(), getUIFullUrl(QStringLiteral("NameDialog.qml")));
            QObject* page = component.createWithInitialProperties(
                {{QStringLiteral("controller"), QVariant::fromValue<QObject*>(&controller)}});
            QVERIFY2(page, qPrintable(component.errorString()));
            Shown shown(page);
            work(shown, controller, *page);
            worked = true;
        };
        host.dialogs = {{{step, 5100}}};
        NameDialogController::launchDialog(QStringLiteral("Save Filter"), QStringLiteral("Name:"),
                                           QStringLiteral("&Save"), QStringLiteral("old"),
                                           [](const QString&) { return true; });
        QVERIFY(worked);
    }

    std::optional<velmtest::PageEngine> m_engine;
};

PAGE_TEST_MAIN(TestPages)
#include "tst_pages.moc"
