#include "velm/bridge/engine.h"

#include "support/scopes.h"
#include "support/table.h"
#include "ut/leaktracking.h"
#include "ut/themecolors.h"
#include "velm/units/qtfontconfig.h"
#include "velm/units/settings.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QQuickStyle>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

using namespace velm;

class TestEngine : public QObject
{
    Q_OBJECT
    using Environment = QMap<QByteArray, QByteArray>;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }
    void cleanup()
    {
        QtFontConfig::destroyInstance();
        Settings::destroyInstance();
    }

    void theEnvironmentOfAQtInstallationIsTakenAway_data()
    {
        const auto row =
            velmtest::columns<QByteArray, QByteArray, QByteArray, QByteArray>("name", "value", "override", "left");
        for (const char* name :
             {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "QT_QUICK_CONTROLS_CONF", "QT_QUICK_CONTROLS_STYLE"}) {
            QTest::addRow("%s is emptied", name) << QByteArray(name) << QByteArray("x") << QByteArray() << QByteArray();
            QTest::addRow("%s gives way to its override", name)
                << QByteArray(name) << QByteArray("x") << QByteArray("y") << QByteArray("y");
            QTest::addRow("an override alone sets %s", name)
                << QByteArray(name) << QByteArray() << QByteArray("y") << QByteArray("y");
            QTest::addRow("%s stays unset", name) << QByteArray(name) << QByteArray() << QByteArray() << QByteArray();
        }
        const QByteArray platform("QT_QPA_PLATFORM");
        row("the platform xcb stays", platform, "xcb", QByteArray(), "xcb");
        row("another platform is emptied", platform, "wayland", QByteArray(), QByteArray());
        row("xcb with an option is another platform", platform, "xcb:x", QByteArray(), QByteArray());
        row("an override of the platform wins over xcb", platform, "xcb", "offscreen", "offscreen");
        row("an override alone sets the platform", platform, QByteArray(), "offscreen", "offscreen");
        row("the platform stays unset", platform, QByteArray(), QByteArray(), QByteArray());
    }
    void theEnvironmentOfAQtInstallationIsTakenAway()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, override);
        QFETCH(QByteArray, left);
        const auto optional = [](const QByteArray& text) {
            return text.isNull() ? std::optional<QByteArray>() : std::optional<QByteArray>(text);
        };
        const QByteArray overrideName = "TN_" + name;
        const velmtest::ScopedEnvironment variable(name.constData(), optional(value));
        const velmtest::ScopedEnvironment overriding(overrideName.constData(), optional(override));
        // Not the variable in hand, but changed by the call as well.
        const velmtest::ScopedEnvironment platform("QT_QPA_PLATFORM", optional(qgetenv("QT_QPA_PLATFORM")));
        undefineQtEnvVars();
        QCOMPARE(qgetenv(name.constData()), left);
        QCOMPARE(qEnvironmentVariableIsSet(name.constData()), !value.isNull() || !override.isNull());
    }

    void numbersAreThoseOfTheCLocaleWithoutGroups()
    {
        const velmtest::ScopedLocale german(QLocale(QLocale::German));
        setDefaultLocale();
        QCOMPARE(QLocale().toString(1234.5), QString("1234.5"));
        bool read = true;
        QLocale().toDouble("1,234", &read);
        QVERIFY(!read);
        QCOMPARE(QLocale().toDouble("1234.5", &read), 1234.5);
        QVERIFY(read);
    }

    void aPageIsNamedByItsPathOrByItsModule_data()
    {
        const auto row = velmtest::columns<QString, QString, QString>("file", "module", "url");
        row("a file below the root", "page.qml", "Tandolin.UI", "qrc:/qt/qml/page.qml");
        row("any other file lies in its module", "a.qml", "Tandolin.UI", "qrc:/qt/qml/Tandolin/UI/a.qml");
        row("a folder below the module", "parts/a.qml", "One.Two.Three", "qrc:/qt/qml/One/Two/Three/parts/a.qml");
    }
    void aPageIsNamedByItsPathOrByItsModule()
    {
        QFETCH(QString, file);
        QFETCH(QString, module);
        QFETCH(QString, url);
        QCOMPARE(getQUrl(file, module, "qml/plugins").toString(), url);
    }

    void documentsAreLoadedFromTextAndFromResources()
    {
        QQmlEngine engine;
        const auto fromText = loadQml(QString("import QtQml\nQtObject { objectName: \"Größe\" }"), engine);
        QVERIFY(fromText);
        QVERIFY(!fromText->parent());
        QCOMPARE(fromText->objectName(), QString("Größe"));
        const auto fromUrl = loadQml(getQUrl("page.qml", "Any.Module", ""), engine);
        QVERIFY(fromUrl);
        QCOMPARE(fromUrl->objectName(), QString("the page"));
    }

    void errorsAreLoggedAndGiveNoObject()
    {
        QQmlEngine engine;
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("xpected token"));
        QVERIFY(!loadQml(QString("import QtQml\nQtObject {{"), engine));
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("^No such file or directory$"));
        QVERIFY(!loadQml(QUrl("qrc:/qt/qml/none.qml"), engine));
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("module \"No.Such\".* is not installed"));
        loadPlugins({"No.Such"}, engine);

        QCOMPARE(logErrors({}), HasErrors::No);
        QQmlError first;
        first.setDescription("one \"quoted\"");
        first.setUrl(QUrl("qrc:/a.qml"));
        first.setLine(3);
        QQmlError second;
        second.setDescription("two");
        QTest::ignoreMessage(QtCriticalMsg, "one \"quoted\"");
        QTest::ignoreMessage(QtCriticalMsg, "two");
        QCOMPARE(logErrors({first, second}), HasErrors::Yes);
    }

    void aDelayedCallRunsOnceFromTheEventLoop()
    {
        int calls = 0;
        delayedCall(0, [&calls] { ++calls; });
        QCOMPARE(calls, 0);
        QTRY_COMPARE(calls, 1);
        delayedCall(1, [&calls] { calls = 10; });
        QTRY_COMPARE(calls, 10);
    }

    void methodsAreFoundByTheirWholeName()
    {
        QQmlEngine engine;
        const auto object = loadQml(QString("import QtQml\nQtObject { function draw(x) {} }"), engine);
        QVERIFY(qmlMethodIsInvokable(object.get(), "draw"));
        QVERIFY(qmlMethodIsInvokable(object.get(), "deleteLater"));
        QVERIFY(!qmlMethodIsInvokable(object.get(), "dra"));
        QVERIFY(!qmlMethodIsInvokable(object.get(), "draw(QVariant)"));
        QVERIFY(!qmlMethodIsInvokable(object.get(), ""));
    }

    void everyEngineKnowsTheModulesAndTheStyle()
    {
        PluginImportLoader loader;
        const QString imports = QCoreApplication::applicationDirPath() + "/imports";
        // The pages lie in the modules' plugins.
        const char* const pages[] = {
            ":/qt/qml/Tandolin/UI/NameDialog.qml", ":/qt/qml/Tandolin/API/Core/Themes/Colors.qml",
            ":/qt/qml/Tandolin/API/Core/Style/Button.qml", ":/qt/qml/Tandolin/API/Resources/Mark.qml"};
        for (const char* page : pages)
            QVERIFY2(!QFile::exists(page), page);
        for (int round = 0; round < 2; ++round) {
            // With a used loader as well: the paths that it remembers are the new engine's too.
            auto engine = createEngine(loader);
            for (const char* page : pages)
                QVERIFY2(QFile::exists(page), page);
            QVERIFY(!ut::IgnoreMemoryLeakTracking::isActive());
            QCOMPARE(loader.importPaths, std::vector<QString>({imports + "/Tandolin", imports}));
            QCOMPARE(engine->importPathList().mid(0, 2), QStringList({imports, imports + "/Tandolin"}));
            QCOMPARE(QQuickStyle::name(), QString("Tandolin.API.Core.Style"));
            ignoreSingletonLeaksOnStartup(*engine);
            QVERIFY(!ut::IgnoreMemoryLeakTracking::isActive());
            loader.reload(*engine);
            QCOMPARE(engine->importPathList().mid(0, 2), QStringList({imports, imports + "/Tandolin"}));
            QVERIFY(loader.plugins.empty());
            resetEngine(engine);
        }
    }

    void theEngineGoesDownInOrder()
    {
        struct Extension : ut::ThemeColorsBase
        {
            explicit Extension(QStringList& log) : m_log(log) {}
            ~Extension() override { m_log += "extension"; }
            QStringList& m_log;
        };
        QStringList log;
        const auto typeIsKnown = [] { return qmlTypeId("Test.Types", 1, 0, "Timer") != -1 ? " with types" : ""; };
        qmlRegisterType<QTimer>("Test.Types", 1, 0, "Timer");
        ut::ThemeColorManager::setExtension(std::make_unique<Extension>(log));
        auto engine = std::make_unique<QQmlEngine>();
        Settings* settings = Settings::instance();
        settings->setTooltipDelay(7);
        Settings* during = nullptr;
        connect(engine.get(), &QObject::destroyed, this, [&] { log += QString("engine") + typeIsKnown(); });
        connect(QtFontConfig::instance(), &QObject::destroyed, this,
                [&] { log += QString("font config") + typeIsKnown(); });
        connect(settings, &QObject::destroyed, this, [&] {
            log += "settings";
            during = Settings::instance();
        });

        resetEngine(engine);
        QCOMPARE(log, QStringList({"extension", "engine with types", "font config", "settings"}));
        QVERIFY(!engine);
        // Whoever asked while the singleton died got a fresh one, which stays.
        QVERIFY(during != settings);
        QCOMPARE(Settings::instance(), during);
        QCOMPARE(during->tooltipDelay(), 500);
        resetEngine(engine);
    }

    void shutdownCollectsWhatQmlOwns()
    {
        QQmlEngine engine;
        const QPointer<QObject> garbage = new QObject;
        engine.newQObject(garbage);
        cleanupBeforeShutdown(engine);
        QTRY_VERIFY(!garbage);
    }

    void aSingletonLivesOnTheApplicationsThread()
    {
        const std::unique_ptr<QThread> thread(QThread::create([] {
            Settings::instance();
            QtFontConfig::instance();
        }));
        thread->start();
        QVERIFY(thread->wait());
        QCOMPARE(Settings::instance()->thread(), QCoreApplication::instance()->thread());
        QCOMPARE(QtFontConfig::instance()->thread(), QCoreApplication::instance()->thread());
    }

    void noEngineDeletesASingleton()
    {
        const QPointer<Settings> settings = Settings::create(nullptr, nullptr);
        QCOMPARE(settings, Settings::instance());
        {
            QQmlEngine engine;
            engine.newQObject(settings);
            engine.newQObject(QtFontConfig::create(nullptr, nullptr));
            engine.collectGarbage();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(settings);
    }
};

QTEST_MAIN(TestEngine)
#include "tst_engine.moc"
