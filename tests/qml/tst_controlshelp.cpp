#include "shownpage.h"
#include "velm/bridge/externalfunctions.h"

using velmtest::PageEngine;
using velmtest::Shown;

/// The help of a page: a button that tells the page's address and opens it, and a key.
class TestControlsHelp : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { velm::setVELMExternalFunction({}); }

    void aButtonTellsTheAddressAndOpensIt();
    void aTitleHasHelpWhenItHasAKey();
    void theKeyOpensHelpUnlessAFieldTakesIt();

private:
    QStringList m_opened;
};

void TestControlsHelp::init()
{
    m_opened.clear();
    velm::ExternalFunctions functions;
    functions.openWebDoc = [this](const QString& key) { m_opened << key; };
    functions.getWebDocUrl = [](const QString& key) { return "file:///my%20docs/" + key + ".html"; };
    velm::setVELMExternalFunction(functions);
}

void TestControlsHelp::aButtonTellsTheAddressAndOpensIt()
{
    PageEngine engine;
    Shown shown(engine.load("HelpButton { readonly property string tip: ToolTip.text }"));
    QVERIFY(shown.isReady());
    auto* button = qobject_cast<QQuickItem*>(shown.page());
    QVERIFY(!button->isVisible());
    button->setProperty("key", "tables");
    QVERIFY(button->isVisible());
    QCOMPARE(button->property("tip").toString(), QStringLiteral("Help\nfile:///my docs/tables.html"));
    shown.click(button);
    QCOMPARE(m_opened, QStringList{QStringLiteral("tables")});
    // Without a host there is no address, and nothing to open.
    velm::setVELMExternalFunction({});
    button->setProperty("key", "models");
    QCOMPARE(button->property("tip").toString(), QStringLiteral("Help"));
    shown.click(button);
    QCOMPARE(m_opened.size(), 1);
}

void TestControlsHelp::aTitleHasHelpWhenItHasAKey()
{
    PageEngine engine;
    Shown shown(engine.load("Pane { PanelTitle { objectName: 'title'; width: 200; title: 'Sheets' } }"));
    QVERIFY(shown.isReady());
    QQuickItem* button = shown.find("panelHelpButton");
    QVERIFY(!button->isVisible());
    shown.find("title")->setProperty("helpKey", "sheets");
    QTRY_VERIFY(button->isVisible() && button->width() > 0);
    shown.click(button);
    QCOMPARE(m_opened, QStringList{QStringLiteral("sheets")});
}

void TestControlsHelp::theKeyOpensHelpUnlessAFieldTakesIt()
{
    PageEngine engine;
    Shown shown(engine.load("PanelPage { id: page\n"
                            "Column {\n"
                            "TextField { objectName: 'plain'; focus: true }\n"
                            "TextField { objectName: 'taking'; Keys.onPressed: event => event.accepted = true }\n"
                            "} }"));
    QVERIFY(shown.isReady());
    shown.press(Qt::Key_F1);
    QVERIFY(m_opened.isEmpty());
    shown.page()->setProperty("helpKey", "units");
    shown.press(Qt::Key_F1);
    QCOMPARE(m_opened, QStringList{QStringLiteral("units")});
    shown.find("taking")->forceActiveFocus();
    shown.press(Qt::Key_F1);
    QCOMPARE(m_opened.size(), 1);
}

int main(int argc, char** argv)
{
    return velmtest::runPageTest<TestControlsHelp>(argc, argv);
}

#include "tst_controlshelp.moc"
