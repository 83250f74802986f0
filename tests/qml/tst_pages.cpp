#include "shownpage.h"
#include "support/fakehost.h"
#include "support/scopes.h"
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
    void init();
    void cleanup();
    void theNameDialogWritesWhatIsTyped();
    void theNameDialogAsksForItsEnd_data();
    void theNameDialogAsksForItsEnd();
    void anIconButtonIsClickedByMouseAndKeyboard();
    void aToolTipWaitsForTheSettings();
    void aToolIconFollowsThemeAndName();
    void theSearchFieldIsEmptied();
    void aFieldHasAMenuToEditItsText();
    void aListIsWalkedByKeyboard_data();
    void aListIsWalkedByKeyboard();
    void aListTellsWhatIsActivated();
    void aListFindsRowsOfAnItemModel();
    void aListBeginsAtTheRowThatItIsGiven();
    void mnemonicsPressTheirButtons();

private:
    std::unique_ptr<QObject> load(const QByteArray& body)
    {
        const QByteArray text = "import QtQuick\nimport QtQuick.Controls\nimport Tandolin.API.Controls\n" + body;
        return loadQml(QString::fromUtf8(text), *m_engine);
    }
    /// Shows the page in the step of a name dialog and works it.
    void workNameDialog(const std::function<void(Shown&, BaseDialogController&, QObject& page)>& work);

    PluginImportLoader m_loader;
    std::unique_ptr<QQmlEngine> m_engine;
};

void TestPages::init()
{
    m_engine = createEngine(m_loader);
}

void TestPages::cleanup()
{
    resetEngine(m_engine);
}

void TestPages::workNameDialog(const std::function<void(Shown&, BaseDialogController&, QObject&)>& work)
{
    velmtest::FakeGuiController host;
    ExternalFunctions functions;
    functions.guiController = [&host] { return &host; };
    functions.getUIFullUrl = [](const QString& page) { return getQUrl(page, QStringLiteral("Tandolin.UI"), {}); };
    const velmtest::ScopedExternalFunctions scope(functions);
    bool worked = false;
    const auto step = [&](BaseDialogController& controller) {
        QQmlComponent component(m_engine.get(), getUIFullUrl(QStringLiteral("NameDialog.qml")));
        QObject* page = component.createWithInitialProperties(
            {{QStringLiteral("controller"), QVariant::fromValue<QObject*>(&controller)}});
        QVERIFY2(page, qPrintable(component.errorString()));
        Shown shown(page);
        QVERIFY(shown.isReady());
        work(shown, controller, *page);
        worked = true;
    };
    host.dialogs = {{{step, 5100}}};
    NameDialogController::launchDialog(QStringLiteral("Save Filter"), QStringLiteral("Name:"), QStringLiteral("&Save"),
                                       QStringLiteral("old"), [](const QString&) { return true; });
    QVERIFY(worked);
}

void TestPages::theNameDialogWritesWhatIsTyped()
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

void TestPages::theNameDialogAsksForItsEnd_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<QString>("asked");
    QTest::addRow("Enter accepts") << QList<int>{Qt::Key_Return} << QString() << "accepted";
    QTest::addRow("Enter of the keypad accepts") << QList<int>{Qt::Key_Enter} << QString() << "accepted";
    QTest::addRow("Escape rejects") << QList<int>{Qt::Key_Escape} << QString() << "rejected";
    QTest::addRow("Enter on the action button accepts")
        << QList<int>{Qt::Key_Tab, Qt::Key_Return} << QString() << "accepted";
    QTest::addRow("Enter on Cancel rejects")
        << QList<int>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return} << QString() << "rejected";
    QTest::addRow("Space on Cancel rejects")
        << QList<int>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space} << QString() << "rejected";
    QTest::addRow("a click on the action button accepts") << QList<int>{} << "accept"
                                                          << "accepted";
    QTest::addRow("a click on Cancel rejects") << QList<int>{} << "reject"
                                               << "rejected";
}

void TestPages::theNameDialogAsksForItsEnd()
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

void TestPages::anIconButtonIsClickedByMouseAndKeyboard()
{
    std::unique_ptr<QObject> page = load("Pane { IconButton { objectName: 'button'; mark: 'add'; text: '&Add' } }");
    QVERIFY(page);
    Shown shown(page.release());
    QVERIFY(shown.isReady());
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

void TestPages::aToolTipWaitsForTheSettings()
{
    Settings::instance()->setTooltipDelay(0);
    Settings::instance()->setTooltips(false);
    std::unique_ptr<QObject> page =
        load("Pane { property bool shown: button.ToolTip.toolTip.visible\n"
             "property string tip: button.ToolTip.toolTip.text\n"
             "IconButton { id: button; objectName: 'button'; text: '&Add'; hoverEnabled: true } }");
    QVERIFY(page);
    QObject* root = page.get();
    Shown shown(page.release());
    QVERIFY(shown.isReady());
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

void TestPages::aToolIconFollowsThemeAndName()
{
    std::unique_ptr<QObject> page = load("import Tandolin.API.Core.Themes.Engine\n"
                                         "Item { ToolIcon { objectName: 'icon'; size: 30 }\n"
                                         "function setTheme(theme: int) { Theme.setColorTheme(theme) } }");
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

void TestPages::theSearchFieldIsEmptied()
{
    std::unique_ptr<QObject> page = load("Pane { property int escaped: 0; Keys.onEscapePressed: escaped++\n"
                                         "SearchField { objectName: 'field'; focus: true } }");
    QVERIFY(page);
    QObject* root = page.get();
    Shown shown(page.release());
    QVERIFY(shown.isReady());
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

void TestPages::aFieldHasAMenuToEditItsText()
{
    std::unique_ptr<QObject> page = load("Pane { TextField { objectName: 'field'; text: 'wall' } }");
    QVERIFY(page);
    Shown shown(page.release());
    QVERIFY(shown.isReady());
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

void TestPages::aListIsWalkedByKeyboard_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("row");
    // Alpha, beta, Bravo, charlie, bravissimo, delta
    QTest::addRow("Down moves on") << 1 << QList<int>{Qt::Key_Down} << 2;
    QTest::addRow("Up stops at the first row") << 0 << QList<int>{Qt::Key_Up} << 0;
    QTest::addRow("Down stops at the last row") << 5 << QList<int>{Qt::Key_Down} << 5;
    QTest::addRow("Down without a current row takes the first") << -1 << QList<int>{Qt::Key_Down} << 0;
    QTest::addRow("Home goes to the first row") << 4 << QList<int>{Qt::Key_Home} << 0;
    QTest::addRow("End goes to the last row") << 1 << QList<int>{Qt::Key_End} << 5;
    QTest::addRow("a page is what fits") << 0 << QList<int>{Qt::Key_PageDown} << 3;
    QTest::addRow("a page up stops at the first row") << 2 << QList<int>{Qt::Key_PageUp} << 0;
    QTest::addRow("a letter finds the next row") << 1 << QList<int>{Qt::Key_B} << 2;
    QTest::addRow("a letter finds a row from none") << -1 << QList<int>{Qt::Key_A} << 0;
    QTest::addRow("a letter goes round the end") << 4 << QList<int>{Qt::Key_A} << 0;
    QTest::addRow("the same letter again goes on") << 0 << QList<int>{Qt::Key_B, Qt::Key_B, Qt::Key_B} << 4;
    QTest::addRow("letters narrow the search")
        << 0 << QList<int>{Qt::Key_B, Qt::Key_R, Qt::Key_A, Qt::Key_V, Qt::Key_I} << 4;
    QTest::addRow("letters that nothing begins with stay") << 3 << QList<int>{Qt::Key_X} << 3;
    QTest::addRow("an arrow ends the letters") << 0 << QList<int>{Qt::Key_B, Qt::Key_Home, Qt::Key_D} << 5;
}

void TestPages::aListIsWalkedByKeyboard()
{
    QFETCH(int, start);
    QFETCH(QList<int>, keys);
    QFETCH(int, row);
    std::unique_ptr<QObject> page = load("PlainListView { height: 100; implicitHeight: 100\n"
                                         "model: ['Alpha', 'beta', 'Bravo', 'charlie', 'bravissimo', 'delta'] }");
    QVERIFY(page);
    QObject* list = page.get();
    Shown shown(page.release());
    QVERIFY(shown.isReady());
    list->setProperty("currentIndex", start);
    for (const int key : keys)
        shown.press(Qt::Key(key));
    QCOMPARE(list->property("currentIndex").toInt(), row);
}

void TestPages::aListTellsWhatIsActivated()
{
    std::unique_ptr<QObject> page = load("PlainListView { model: ListModel { ListElement { title: 'One' }\n"
                                         "ListElement { title: 'Two words' } }\n textRole: 'title' }");
    QVERIFY(page);
    QObject* list = page.get();
    Shown shown(page.release());
    QVERIFY(shown.isReady());
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

void TestPages::aListFindsRowsOfAnItemModel()
{
    QStandardItemModel model;
    for (int row = 0; row < 200; ++row)
        model.appendRow(new QStandardItem(QStringLiteral("Layer %1").arg(row)));
    model.item(190)->setText(QStringLiteral("Zero"));
    std::unique_ptr<QObject> page = load("PlainListView { textRole: 'display' }");
    QVERIFY(page);
    QObject* list = page.get();
    list->setProperty("model", QVariant::fromValue<QObject*>(&model));
    Shown shown(page.release());
    QVERIFY(shown.isReady());
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

void TestPages::aListBeginsAtTheRowThatItIsGiven()
{
    const std::unique_ptr<QObject> page = load(
        "PlainListView { currentIndex: 2; model: { let rows = []; for (let i = 0; i < 9; ++i) rows.push('Row ' + i);\n"
        "return rows; } }");
    QVERIFY(page);
    QCOMPARE(page->property("currentIndex").toInt(), 2);
    QCOMPARE(page->property("count").toInt(), 9);
}

void TestPages::mnemonicsPressTheirButtons()
{
    std::unique_ptr<QObject> page = load("Pane { DialogButtons { objectName: 'buttons'; acceptText: '&Save' } }");
    QVERIFY(page);
    Shown shown(page.release());
    QVERIFY(shown.isReady());
    QSignalSpy accepted(shown.find("buttons"), SIGNAL(accepted()));
    QSignalSpy rejected(shown.find("buttons"), SIGNAL(rejected()));
    shown.press(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(rejected.count(), 0);
    shown.press(Qt::Key_C, Qt::AltModifier);
    QCOMPARE(rejected.count(), 1);
}

int main(int argc, char** argv)
{
    return velmtest::runPageTest<TestPages>(argc, argv);
}

#include "tst_pages.moc"
