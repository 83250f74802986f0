#include "shownpage.h"
#include "support/table.h"
#include "velm/bridge/qtwindowparent.h"
#include "velm/dialogs/transientpopupcore.h"

#include <QSignalSpy>

using velmtest::PageEngine;
using velmtest::Shown;

/// The popup window of a page, with the core that its owner holds.
class TestControlsPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_core = std::make_unique<velm::TransientPopupCore>();
        m_engine = std::make_unique<PageEngine>();
        m_shown = std::make_unique<Shown>(m_engine->load(
            "Pane { id: root; implicitWidth: 300; implicitHeight: 200; property var core\n"
            "property int clicks: 0; property var shownAt: []\n"
            "Button { id: openerButton; objectName: 'opener'; text: 'Open'; onClicked: popup.toggle() }\n"
            "PopupWindow { id: popup; objectName: 'popup'; core: root.core; opener: openerButton\n"
            "  onAboutToShow: { root.shownAt.push(width); root.core.setPosition(Qt.point(70, 90)) }\n"
            "  Button { objectName: 'inside'; implicitWidth: 120; implicitHeight: 40; focus: true\n"
            "    onClicked: ++root.clicks } } }",
            {{QStringLiteral("core"), QVariant::fromValue<QObject*>(m_core.get())}}));
        m_popup = m_shown->page()->findChild<QQuickWindow*>(QStringLiteral("popup"));
        QVERIFY(m_popup);
        m_closed = std::make_unique<QSignalSpy>(m_core.get(), &velm::TransientPopupCore::closed);
    }

    void cleanup()
    {
        m_shown.reset();
        m_engine.reset();
    }

    void opensWhereTheCoreSaysAndAsLargeAsItsContents()
    {
        QWindow host;
        m_core->windowParent()->setQtParent(&host);
        open();
        QCOMPARE(m_popup->position(), QPoint(70, 90));
        QVERIFY(m_popup->width() >= 120 && m_popup->width() < 180);
        QCOMPARE(m_shown->page()->property("shownAt").toList(), QVariantList{m_popup->width()});
        QCOMPARE(m_popup->transientParent(), &host);
        QTest::keyClick(m_popup, Qt::Key_Space);
        QCOMPARE(m_shown->page()->property("clicks").toInt(), 1);
        Q_EMIT m_core->setPosition(QPoint(-40, 12));
        QCOMPARE(m_popup->position(), QPoint(-40, 12));
        QCOMPARE(m_closed->count(), 0);
    }

    void closesOnceByWhicheverRoad_data()
    {
        const auto row = velmtest::columns<int>("road");
        row("the core asks for it", 0);
        row("Escape", 1);
        row("another window gets the keyboard", 2);
        row("the window system closes it", 3);
    }
    void closesOnceByWhicheverRoad()
    {
        QFETCH(const int, road);
        // And it opens again.
        for (int time = 1; time <= 2; ++time) {
            open();
            if (road == 0)
                m_core->requestClose();
            else if (road == 1)
                QTest::keyClick(m_popup, Qt::Key_Escape);
            else if (road == 2)
                m_shown->window()->requestActivate();
            else
                m_popup->close();
            QTRY_VERIFY(!isOpen());
            m_core->requestClose();
            QTRY_COMPARE(m_closed->count(), time);
        }
    }

    void staysOpenWhileCustomContentHasTheFocus()
    {
        bool hasFocus = true;
        m_core->setCustomContentHasFocusImpl([&] { return hasFocus; });
        open();
        m_shown->window()->requestActivate();
        waitForKeyboard(m_shown->window());
        QVERIFY(isOpen());
        m_popup->requestActivate();
        waitForKeyboard(m_popup);
        hasFocus = false;
        m_shown->window()->requestActivate();
        QTRY_VERIFY(!isOpen());
    }

    void aReleaseIsIgnoredWhenTheCoreSaysSo()
    {
        open();
        m_core->setIgnoreNextMouseRelease(true);
        const QPoint centre(m_popup->width() / 2, m_popup->height() / 2);
        for (const int clicks : {0, 1}) {
            QTest::mouseClick(m_popup, Qt::LeftButton, {}, centre);
            QCOMPARE(m_shown->page()->property("clicks").toInt(), clicks);
            QVERIFY(!m_core->ignoreNextMouseRelease());
        }
    }

private:
    void open()
    {
        QMetaObject::invokeMethod(m_popup, "open");
        waitForKeyboard(m_popup);
    }

    static void waitForKeyboard(QWindow* window)
    {
        // The popup is active already when its parent is.
        QTRY_COMPARE(QGuiApplication::focusWindow(), window);
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }

    bool isOpen() const { return m_popup->isVisible(); }

    std::unique_ptr<velm::TransientPopupCore> m_core;
    std::unique_ptr<PageEngine> m_engine;
    std::unique_ptr<Shown> m_shown;
    std::unique_ptr<QSignalSpy> m_closed;
    QQuickWindow* m_popup = nullptr; // not owned
};

PAGE_TEST_MAIN(TestControlsPopup)
#include "tst_controlspopup.moc"
