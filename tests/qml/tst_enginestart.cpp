#include "shownpage.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/units/settings.h"

#include <QQmlContext>
#include <QQmlPropertyMap>

using namespace velm;

namespace {
constexpr char themeDocument[] = "import QtQuick\n"
                                 "import Tandolin.API.Core.Themes.Engine\n"
                                 "QtObject { id: root; Component.onCompleted: Theme.setColorTheme(0) }";
}

/// The engine's start as the host runs it, and its rebuild. A message of any kind fails the test.
class TestEngineStart : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theEngineStartsAndIsRebuiltWithoutAMessage()
    {
        PluginImportLoader loader;
        for (int round = 0; round < 3; ++round) {
            std::unique_ptr<QQmlEngine> engine = createEngine(loader);
            if (round > 0)
                loader.reload(*engine);
            ignoreSingletonLeaksOnStartup(*engine);
            QVERIFY(loadQml(QString::fromLatin1(themeDocument), *engine));
            const auto map = engine->property("colorMap").value<QSharedPointer<QQmlPropertyMap>>();
            QVERIFY(map);
            QCOMPARE(map->size(), 30);

            QQuickWindow window;
            const std::unique_ptr<QObject> page =
                loadQml(QUrl::fromLocalFile(QFINDTESTDATA("everycontrol.qml")), *engine);
            auto* item = qobject_cast<QQuickItem*>(page.get());
            QVERIFY(item);
            item->setParentItem(window.contentItem());
            window.resize(600, 800);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            // The style's own file, not that of Basic, is what QtQuick.Controls gives.
            QCOMPARE(item->property("padding").toReal(), 10.0);
            item->setParentItem(nullptr);

            cleanupBeforeShutdown(*engine);
            resetEngine(engine);
        }
    }

    void aPageIsFoundByItsUrl()
    {
        PluginImportLoader loader;
        std::unique_ptr<QQmlEngine> engine = createEngine(loader);
        const QUrl url = getQUrl(QStringLiteral("NameDialog.qml"), QStringLiteral("Tandolin.UI"), {});
        QCOMPARE(url, QUrl(QStringLiteral("qrc:/qt/qml/Tandolin/UI/NameDialog.qml")));
        QQmlComponent component(engine.get(), url);
        QVERIFY2(component.isReady(), qPrintable(component.errorString()));
        resetEngine(engine);
    }

    void singletonsOfTheLibraryAreTheProgramsOwn()
    {
        PluginImportLoader loader;
        std::unique_ptr<QQmlEngine> engine = createEngine(loader);
        Settings::instance()->setTooltipDelay(123);
        const std::unique_ptr<QObject> page = loadQml(
            QStringLiteral("import QtQml\nimport Tandolin\nQtObject { property int delay: Settings.tooltipDelay }"),
            *engine);
        QVERIFY(page);
        QCOMPARE(page->property("delay").toInt(), 123);
        Settings::instance()->setTooltipDelay(321);
        QCOMPARE(page->property("delay").toInt(), 321);
        engine.reset();
        QCOMPARE(Settings::instance()->tooltipDelay(), 321);
        resetEngine(engine);
    }
};

PAGE_TEST_MAIN(TestEngineStart)
#include "tst_enginestart.moc"
