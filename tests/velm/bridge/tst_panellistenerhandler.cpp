#include "velm/bridge/notifications.h"
#include "velm/bridge/panellistenerhandler.h"

#include <QStringList>
#include <QTest>

using namespace velm;

namespace {
QStringList calls;

class Listener : public QtPanelActivateListener
{
public:
    explicit Listener(QString name) : m_name(std::move(name)) {}
    void activatePanel(bool active) override { calls += m_name + (active ? " on" : " off"); }
    void postLoaderActivation(bool active) override { calls += m_name + (active ? " loaded on" : " loaded off"); }

private:
    QString m_name;
};
} // namespace

class TestPanelListenerHandler : public QObject
{
    Q_OBJECT
    const QUrl m_page{"qrc:/a.qml"};
    const QUrl m_other{"qrc:/b.qml"};

private Q_SLOTS:
    void init() { calls.clear(); }

    void listenersAreToldOnceInTheOrderOfAdding()
    {
        Listener first("first");
        Listener second("second");
        PanelListenerHandler handler;
        for (QtPanelActivateListener* listener : {&second, &first, &second})
            handler.addPanelListener(listener, m_page);
        handler.addPanelListener(&first, m_other);
        handler.activatePanel(true, m_page);
        handler.postLoaderActivation(false, m_page);
        handler.activatePanel(false, m_other);
        QCOMPARE(calls, QStringList({"second on", "first on", "second loaded off", "first loaded off", "first off"}));
    }

    void aRemovedListenerLeavesTheOrderOfTheOthers()
    {
        Listener a("a");
        Listener b("b");
        Listener c("c");
        PanelListenerHandler handler;
        for (Listener* listener : {&a, &b, &c})
            handler.addPanelListener(listener, m_page);
        handler.addPanelListener(&b, m_other);
        PanelListenerHandler copy = handler;
        handler.removePanelListener(&b, m_page);
        handler.removePanelListener(&b, m_page);
        handler.activatePanel(true, m_page);
        handler.activatePanel(true, m_other);
        QCOMPARE(calls, QStringList({"a on", "c on", "b on"}));
        calls.clear();
        copy.activatePanel(true, m_page);
        QCOMPARE(calls, QStringList({"a on", "b on", "c on"}));
    }

    void unknownPagesAndNullListenersAreHarmless()
    {
        Listener a("a");
        PanelListenerHandler handler;
        handler.removePanelListener(&a, m_page);
        handler.activatePanel(true, m_page);
        handler.addPanelListener(nullptr, m_page);
        handler.activatePanel(true, m_page);
        handler.postLoaderActivation(true, m_page);
        QVERIFY(calls.isEmpty());
        handler.addPanelListener(&a, m_page);
        handler.activatePanel(true, m_page);
        QCOMPARE(calls, QStringList{"a on"});
    }

    void sourceNumbersCountUp()
    {
        QCOMPARE(notifications::generateSourceID(), 1);
        QCOMPARE(notifications::generateSourceID(), 2);
    }
};

QTEST_APPLESS_MAIN(TestPanelListenerHandler)
#include "tst_panellistenerhandler.moc"
