#include "shownpage.h"
#include "velm/bridge/externalfunctions.h"

using velmtest::PageEngine;
using velmtest::Shown;

/// The help of a page: a button that tells the page's address and opens it, and a key.
class TestControlsHelp : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_opened.clear();
        velm::ExternalFunctions functions;
        functions.openWebDoc = [this](const QString& key) { m_opened << key; };
        functions.getWebDocUrl = [](const QString& key) { return "file:///my%20docs/" + key + ".html"; };
        velm::setVELMExternalFunction(functions);
    }

    void cleanup() { velm::setVELMExternalFunction({}); }

    void aButtonTellsTheAddressAndOpensIt()
    {
        PageEngine engine;
        Shown shown(engine.load("HelpButton { readonly property string tip: ToolTip.text }"));
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

    void aTitleHasHelpWhenItHasAKey()
    {
        PageEngine engine;
        Shown shown(engine.load("Pane { PanelTitle { objectName: 'title'; width: 200; title: 'Sheets' } }"));
        QQuickItem* button = shown.find("panelHelpButton");
        QVERIFY(!button->isVisible());
        shown.find("title")->setProperty("helpKey", "sheets");
        QTRY_VERIFY(button->isVisible() && button->width() > 0);
        shown.click(button);
        QCOMPARE(m_opened, QStringList{QStringLiteral("sheets")});
    }

    void theKeyOpensHelpUnlessAFieldTakesIt()
    {
        PageEngine engine;
        Shown shown(engine.load("PanelPage { id: page\n"
                                "Column {\n"
                                "TextField { objectName: 'plain'; focus: true }\n"
                                "TextField { objectName: 'taking'; Keys.onPressed: event => event.accepted = true }\n"
                                "} }"));
        shown.press(Qt::Key_F1);
        QVERIFY(m_opened.isEmpty());
        shown.page()->setProperty("helpKey", "units");
        shown.press(Qt::Key_F1);
        QCOMPARE(m_opened, QStringList{QStringLiteral("units")});
        shown.find("taking")->forceActiveFocus();
        shown.press(Qt::Key_F1);
        QCOMPARE(m_opened.size(), 1);
    }

private:
    QStringList m_opened;
};

PAGE_TEST_MAIN(TestControlsHelp)
#include "tst_controlshelp.moc"
