#include "velm/dialogs/transientpopupcore.h"

#include "support/members.h"
#include "support/signallog.h"
#include "velm/bridge/qtwindowparent.h"

#include <QJSEngine>
#include <QPointer>
#include <QTest>

using namespace velm;

class TestTransientPopupCore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshOneHasNothing()
    {
        TransientPopupCore core;
        QVERIFY(!core.customContentHasFocus());
        QVERIFY(!core.ignoreNextMouseRelease());
        QVERIFY(core.windowParent());
        QCOMPARE(core.windowParent(), core.windowParent());
        QVERIFY(!core.windowParent()->getWxParent() && !core.windowParent()->getQtParent());
        QVERIFY(velmtest::members(TransientPopupCore::staticMetaObject)
                    .startsWith("signal: closeRequested() closed() setPosition(QPoint) method:"));
    }

    void itAsksAndTellsNoMoreThanItIsTold()
    {
        TransientPopupCore core;
        velmtest::SignalLog log(core);
        core.requestClose();
        QCOMPARE(log.take(), QString("closeRequested"));
        int asked = 0;
        bool focus = true;
        std::function<bool()> question = [&] { return ++asked, focus; };
        core.setCustomContentHasFocusImpl(question);
        question = nullptr; // the core has a copy
        QCOMPARE(asked, 0);
        QVERIFY(core.customContentHasFocus());
        focus = false;
        QVERIFY(!core.customContentHasFocus());
        QCOMPARE(asked, 2);
        core.setCustomContentHasFocusImpl(nullptr);
        QVERIFY(!core.customContentHasFocus());
        core.setIgnoreNextMouseRelease(true);
        core.requestClose();
        QVERIFY(core.ignoreNextMouseRelease());
        core.setIgnoreNextMouseRelease(false);
        QVERIFY(!core.ignoreNextMouseRelease());
        QCOMPARE(log.take(), QString("closeRequested"));
    }

    void aScriptNeverDeletesTheWindowParent()
    {
        TransientPopupCore core;
        QCOMPARE(QJSEngine::objectOwnership(core.windowParent()), QJSEngine::CppOwnership);
        const QPointer<QtWindowParent> parent = core.windowParent();
        {
            QJSEngine engine;
            QJSEngine::setObjectOwnership(&core, QJSEngine::CppOwnership);
            engine.globalObject().setProperty("core", engine.newQObject(&core));
            QVERIFY(engine.evaluate("core.windowParent() !== null && !core.customContentHasFocus()").toBool());
            engine.collectGarbage();
        }
        QCOMPARE(core.windowParent(), parent.data());
    }
};

QTEST_GUILESS_MAIN(TestTransientPopupCore)
#include "tst_transientpopupcore.moc"
