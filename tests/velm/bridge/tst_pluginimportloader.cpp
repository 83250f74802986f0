#include "velm/bridge/pluginimportloader.h"

#include "velm/bridge/engine.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace velm;

namespace {
const QRegularExpression notInstalled("module \"No.Such\".* is not installed");

void expectNotInstalled()
{
    QTest::ignoreMessage(QtCriticalMsg, notInstalled);
}

/// Where the modules lie: below the executable, or beside it when there is no such folder.
QString importsFolder()
{
    QDir folder(QCoreApplication::applicationDirPath());
    folder.cd("imports");
    return folder.path();
}

/// The import paths that the engine has beyond those of a new engine, the one searched first in front.
QStringList ownPaths(const QQmlEngine& engine)
{
    QStringList result = engine.importPathList();
    for (const QString& path : QQmlEngine().importPathList())
        result.removeAll(path);
    return result;
}
} // namespace

class TestPluginImportLoader : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;

    QString folder(const QString& name)
    {
        QDir(m_folder.path()).mkpath(name);
        return QDir(m_folder.path()).canonicalPath() + '/' + name;
    }

private Q_SLOTS:
    void aPathIsAddedOnce()
    {
        QQmlEngine engine;
        PluginImportLoader loader;
        QVERIFY(loader.addImportPath(folder("a"), engine));
        QVERIFY(!loader.addImportPath(folder("a"), engine));
        QVERIFY(loader.addImportPath(folder("b"), engine));
        QCOMPARE(loader.importPaths, std::vector<QString>({folder("a"), folder("b")}));
        QCOMPARE(ownPaths(engine), QStringList({folder("b"), folder("a")}));
    }

    void modulesAreLoadedAnewAtEveryCall()
    {
        QQmlEngine engine;
        PluginImportLoader loader;
        for (int call = 0; call < 2; ++call) {
            expectNotInstalled();
            loader.addQmlPlugins({"No.Such"}, engine);
        }
        QVERIFY(loader.plugins.empty());
        loader.plugins = {"No.Such"};
        loader.addQmlPlugins({"No.Such"}, engine);
    }

    void aNewEngineGetsTheImportsFolderAndThenTheRememberedPaths()
    {
        PluginImportLoader loader;
        {
            QQmlEngine engine;
            loader.addImportPath(folder("a"), engine);
            loader.addImportPath(folder("b"), engine);
        }
        // What the loader remembers goes with its copies.
        PluginImportLoader copy = loader;
        QQmlEngine next;
        copy.reload(next);
        QCOMPARE(ownPaths(next), QStringList({folder("b"), folder("a"), importsFolder()}));
        QCOMPARE(copy.importPaths.size(), std::size_t(2));

        loader.plugins = {"No.Such"};
        expectNotInstalled();
        loader.reload(next);
    }

    void modulesOfTheFreeFunctionFindTheImportsFolder()
    {
        QQmlEngine engine;
        PluginImportLoader loader;
        expectNotInstalled();
        addQmlPlugins({"No.Such"}, loader, engine);
        QCOMPARE(ownPaths(engine), QStringList{importsFolder()});
        QCOMPARE(loader.importPaths, std::vector<QString>{importsFolder()});
    }

    void noModulesAreNoDocument()
    {
        QQmlEngine engine;
        loadPlugins({}, engine);
        // The engine would say so if anything were compiled now.
        engine.setImportPathList({});
        loadPlugins({}, engine);
    }
};

QTEST_GUILESS_MAIN(TestPluginImportLoader)
#include "tst_pluginimportloader.moc"
