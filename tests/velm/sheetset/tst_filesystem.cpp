#include "velm/sheetset/filesystem.h"
#include "velm/sheetset/filesystemwatcher.h"
#include "velm/sheetset/fileutil.h"
#include "velm/sheetset/ifilesystemlistener.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <iostream>
#include <sstream>

using namespace velm;

class TestFileSystem : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;

    QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name, const QByteArray& text = {})
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir(m_folder.path()).mkpath("b/inner"));
        write("a.dwg");
        write("c.txt", "Straße\r\nzwei");
    }

    void questionsAreAnsweredByTheDisk()
    {
        const FileSystem disk;
        QVERIFY(disk.isDirectory(path("b")) && !disk.isFile(path("b")) && disk.directoryExists(path("b")));
        QVERIFY(!disk.isDirectory(path("a.dwg")) && disk.isFile(path("a.dwg")) && !disk.directoryExists(path("a.dwg")));
        QVERIFY(!disk.isDirectory(path("x")) && !disk.isFile(path("x")) && !disk.directoryExists(path("x")));
    }

    void nameFiltersAreForFiles()
    {
        const FileSystem disk;
        const QDir::Filters filters = QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot;
        QStringList found = disk.browseDirectory(m_folder.path(), {"*.dwg"}, filters);
        found.sort();
        QCOMPARE(found, QStringList({path("a.dwg"), path("b")}));
        QCOMPARE(disk.browseDirectory(m_folder.path(), {}, filters).size(), 3);
        QVERIFY(disk.browseDirectory(path("x"), {}, filters).isEmpty());
    }

    void aDriveIsARootOfTheSystem()
    {
        QVERIFY(isDrive(QDir::rootPath()));
        QVERIFY(!isDrive(m_folder.path()));
    }

    void filesAreReadAsText()
    {
        QCOMPARE(FileUtil::readFile(path("c.txt")), QString("Straße\nzwei"));
        std::ostringstream errors;
        std::streambuf* const former = std::cerr.rdbuf(errors.rdbuf());
        const QString text = FileUtil::readFile("/no/ä.txt");
        std::cerr.rdbuf(former);
        QVERIFY(text.isEmpty());
        QCOMPARE(QString::fromStdString(errors.str()), QString("Unable to open file '/no/ä.txt' for reading\n"));
        QCOMPARE(FileUtil::urlToLocalFile(QUrl("file:///a%20b/c.dwg")), QString("/a b/c.dwg"));
        QVERIFY(FileUtil::urlToLocalFile(QUrl("https://a.example/c")).isEmpty());
    }

    void aWatcherTellsItsListener()
    {
        struct Listener : IFileSystemListener
        {
            void onDirectoryChanged(const QString& changed) override { told += changed; }
            QStringList told;
        } listener;
        FileSystemWatcher watcher;
        watcher.setListener(&listener);
        QVERIFY(watcher.addPath(path("b")));
        QCOMPARE(watcher.directories(), QStringList({path("b")}));
        QVERIFY(watcher.removePaths({}).isEmpty());
        write("b/new.dwg");
        QTRY_COMPARE(listener.told, QStringList({path("b")}));
        QCOMPARE(watcher.removePaths({path("b"), path("x")}), QStringList({path("x")}));
        QVERIFY(watcher.directories().isEmpty());
        QVERIFY(watcher.addPath(path("b")) && watcher.removePath(path("b")) && !watcher.removePath(path("b")));
        Listener other;
        watcher.setListener(&other);
        watcher.onDirectoryChanged("somewhere");
        QCOMPARE(other.told, QStringList({"somewhere"}));
    }
};

QTEST_GUILESS_MAIN(TestFileSystem)

#include "tst_filesystem.moc"
