#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "support/table.h"
#include "ut/config.h"
#include "ut/environment.h"

#include <limits>
#include <memory>

using ut::Config;
using ut::ECfgGroup;

static long readLong(const OdString& key)
{
    long value = -1;
    return Config::read(ECfgGroup::Dialogs, key, value) ? value : -1;
}

class tst_Config : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        useStore(QStringLiteral("settings.ini"));
    }

    void keysAndTextsRoundTrip_data()
    {
        const auto row = velmtest::columns<QString>("text");
        row("an empty text", QString());
        row("a leading slash of an empty dialog name", "/setting");
        row("double slashes and one at the end", "a//b/");
        row("one slash alone", "/");
        row("a backslash beside a slash", "\\/a\\b");
        row("the forms that stand for other keys", "%/%5C/%25/%255C");
        row("blanks at both ends", " \t padded\u00a0");
        row("line ends of all kinds", "one\ntwo\r\nthree\rfour");
        row("the signs of the file's own form", "; [a]=b;c#d%0041%,\"e\"\\n");
        row("what looks like a variant", "@Invalid()");
        row("letters beyond ASCII and the first plane", "Maß 図面 \xf0\x9f\x93\x90");
        row("control characters and a zero", QString(QChar(0)) + QChar(1) + QChar(127) + QStringLiteral("z"));
        row("a very long text", QString(100000, u'x'));
    }
    void keysAndTextsRoundTrip()
    {
        QFETCH(QString, text);
        const OdString odText = text.toStdWString();
        const OdString neighbour = L"setting"; // what "/setting" must not become
        QVERIFY(Config::writeString(ECfgGroup::Dialogs, neighbour, L"neighbour"));
        QVERIFY(Config::writeString(ECfgGroup::Dialogs, odText, odText));

        reopenFromDisk();
        OdString read;
        QVERIFY(Config::read(ECfgGroup::Dialogs, odText, read));
        QCOMPARE(QString::fromStdWString(read.wide()), text);
        QVERIFY(Config::read(ECfgGroup::Dialogs, neighbour, read));
        QVERIFY(read == OdString(L"neighbour"));
    }

    void valuesRoundTripAndKeepTheirType()
    {
        const ECfgGroup group = ECfgGroup::General;
        Config::writeBool(group, L"bool", true);
        Config::writeLong(group, L"long", std::numeric_limits<long>::min());
        Config::writeLong(group, L"short", -32768);
        Config::writeDouble(group, L"double", 0.1 + 0.2);
        Config::writeSize(group, L"size", wxSize(-1, 20));
        Config::writePoint(group, L"point", wxPoint(-300, 40));
        Config::writeRect(group, L"rect", wxRect(-5, 6, 7, 8));
        reopenFromDisk();

        bool boolean = false;
        short small = 0;
        long number = 0;
        double real = 0;
        wxSize size;
        wxPoint point;
        wxRect rect;
        QVERIFY(Config::read(group, L"bool", boolean) && boolean);
        QVERIFY(Config::read(group, L"long", number) && number == std::numeric_limits<long>::min());
        QVERIFY(Config::read(group, L"short", small) && small == -32768);
        QVERIFY(Config::read(group, L"double", real) && real == 0.1 + 0.2);
        QVERIFY(Config::read(group, L"size", size) && size == wxSize(-1, 20));
        QVERIFY(Config::read(group, L"point", point) && point == wxPoint(-300, 40));
        QVERIFY(Config::read(group, L"rect", rect) && rect == wxRect(-5, 6, 7, 8));

        // Of another type: not found, and the caller's value stays.
        QVERIFY(!Config::read(group, L"long", small));
        QCOMPARE(small, short(-32768));
        QVERIFY(!Config::read(group, L"bool", number));
        QVERIFY(!Config::read(group, L"double", number));
        QVERIFY(!Config::read(group, L"long", boolean) && boolean);
        QVERIFY(!Config::read(group, L"rect", size));
        QVERIFY(!Config::read(group, L"size", rect));
        QVERIFY(rect == wxRect(-5, 6, 7, 8));
        QVERIFY(!Config::read(group, L"missing", real));
    }

    void groupsAndCaseTellEntriesApart()
    {
        Config::writeLong(ECfgGroup::Dialogs, L"Key", 1);
        Config::writeLong(ECfgGroup::Dialogs, L"key", 2);
        Config::writeLong(ECfgGroup::General, L"Key", 3);
        Config::writeLong(ECfgGroup::General, L"Dialogs/Key", 5);
        Config::writeLong(static_cast<ECfgGroup>(7), L"Key", 4);
        reopenFromDisk();
        QCOMPARE(readLong(L"Key"), 1);
        QCOMPARE(readLong(L"key"), 2);
        long value = 0;
        QVERIFY(Config::read(ECfgGroup::General, L"Key", value) && value == 3);
        QVERIFY(Config::read(static_cast<ECfgGroup>(7), L"Key", value) && value == 4);
        QVERIFY(!Config::read(ECfgGroup::Interface, L"Key", value));
    }

    void listsGroupsInAlphabeticalOrder()
    {
        for (const wchar_t* key : {L"Dlg/b/Width", L"Dlg/b-2/Width", L"Dlg/a/Width", L"Dlg/a/Hidden", L"Dlg/plain",
                                   L"Dlg2/c/Width", L"/Empty/x", L"Dlg3/100%\\/x"})
            Config::writeLong(ECfgGroup::Dialogs, key, 1);
        OdArray<OdString> groups = {L"left over"};
        QVERIFY(Config::listGroups(ECfgGroup::Dialogs, groups, L"Dlg"));
        QVERIFY(groups == OdArray<OdString>({L"a", L"b", L"b-2"}));
        QVERIFY(Config::listGroups(ECfgGroup::Dialogs, groups, L""));
        QVERIFY(groups == OdArray<OdString>({L"", L"Dlg", L"Dlg2", L"Dlg3"}));
        QVERIFY(Config::listGroups(ECfgGroup::Dialogs, groups, L"/"));
        QVERIFY(groups == OdArray<OdString>({L"Empty"}));
        QVERIFY(Config::listGroups(ECfgGroup::Dialogs, groups, L"Dlg3/"));
        QVERIFY(groups == OdArray<OdString>({L"100%\\"}));
        for (const wchar_t* without : {L"Dlg/a", L"Dl", L"Dlg/plain", L"missing"}) {
            groups = {L"left over"};
            QVERIFY(!Config::listGroups(ECfgGroup::Dialogs, groups, without));
            QVERIFY(groups.isEmpty());
        }
    }

    void deletesOneEntry()
    {
        Config::writeLong(ECfgGroup::Dialogs, L"a", 1);
        Config::writeLong(ECfgGroup::Dialogs, L"a/b", 2);
        QVERIFY(Config::deleteEntry(ECfgGroup::Dialogs, L"a"));
        QVERIFY(!Config::deleteEntry(ECfgGroup::Dialogs, L"a"));
        reopenFromDisk();
        QCOMPARE(readLong(L"a"), -1);
        QCOMPARE(readLong(L"a/b"), 2);
    }

    void readsWhatAPersonTyped()
    {
        fill("; a comment\r\n\r\n[Interface]\r\n  COLORTHEME = 1 \r\n[Dialogs]\nColumn "
             "Data/A=7\nRect=1, 2 ,3,4\n[Other]\nkept=x");
        long theme = 0;
        QVERIFY(Config::read(ECfgGroup::Interface, L"COLORTHEME", theme) && theme == 1);
        wxRect rect;
        QVERIFY(Config::read(ECfgGroup::Dialogs, L"Rect", rect) && rect == wxRect(1, 2, 3, 4));
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"new", 8));
        QCOMPARE(readLong(L"Column Data/A"), 7);
        QVERIFY(content(QStringLiteral("settings.ini")).contains("[Other]\nkept=x\n"));
        fill("[Dialogs]\nnew=9\n"); // by an editor while the store is open: read at once
        QCOMPARE(readLong(L"new"), 9);
    }

    void damagedFileIsSetAside_data()
    {
        const auto row = velmtest::columns<QByteArray>("bytes");
        row("binary garbage", "\x89PNG\r\n\x1a\n=\xff\xfe=\n");
        row("zeros, as after a crash of the system", QByteArray(4096, '\0'));
        row("a zero inside a good line", QByteArray("[Dialogs]\na=1\0\nb=2\n", 18));
        row("bytes that are no letters", "[Dialogs]\na=Stra\xdf"
                                         "e\n");
        row("a control character", "[Dialogs]\na=1\x07\n");
        row("a line that is nothing", "[Dialogs]\na=1\nhello\nb=2\n");
        row("a section without an end", "[Dialogs]\na=1\n[Dia");
        row("a directory in its place", QByteArray());
    }
    void damagedFileIsSetAside()
    {
        QFETCH(QByteArray, bytes);
        const bool isFolder = bytes.isEmpty();
        if (isFolder)
            QVERIFY(QDir().mkpath(path(QStringLiteral("settings.ini/inside"))));
        else
            fill(bytes);
        const QRegularExpression namesBoth(QStringLiteral("settings\\.ini\".*settings\\.damaged-1\\.ini\""));
        QTest::ignoreMessage(QtWarningMsg, namesBoth);
        QCOMPARE(readLong(L"a"), -1);
        QCOMPARE(readLong(L"a"), -1);
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 5));
        reopenFromDisk();
        QCOMPARE(readLong(L"a"), 5);
        if (isFolder)
            QVERIFY(QFileInfo::exists(path(QStringLiteral("settings.damaged-1.ini/inside"))));
        else
            QCOMPARE(content(QStringLiteral("settings.damaged-1.ini")), bytes);
    }

    void secondDamageKeepsTheFirst()
    {
        for (const char* damage : {"first", "second"}) {
            fill(damage);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("damaged-")));
            QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 5)); // a write finds the damage, too
        }
        QCOMPARE(content(QStringLiteral("settings.damaged-1.ini")), "first");
        QCOMPARE(content(QStringLiteral("settings.damaged-2.ini")), "second");
    }

    void unwritableStoreLastsForTheProcess()
    {
        fill("[Dialogs]\n");
        useStore(QStringLiteral("settings.ini/below/a/file.ini"));
        QVERIFY(!Config::isWritable());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("file\\.ini.* can't be written")));
        QVERIFY(!Config::writeLong(ECfgGroup::Dialogs, L"a", 1));
        QVERIFY(!Config::writeLong(ECfgGroup::Dialogs, L"b", 2));
        QCOMPARE(readLong(L"a"), 1);
        QVERIFY(Config::deleteEntry(ECfgGroup::Dialogs, L"a"));
        QCOMPARE(readLong(L"a"), -1);

        // Once the obstacle is gone, the next write brings all of them to the disk, not over what came to lie there.
        QVERIFY(QFile::remove(path(QStringLiteral("settings.ini"))));
        QVERIFY(QDir().mkpath(path(QStringLiteral("settings.ini/below/a"))));
        fill("damaged", QStringLiteral("settings.ini/below/a/file.ini"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("file\\.damaged-1")));
        QVERIFY(Config::isWritable());
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"c", 3));
        QCOMPARE(content(QStringLiteral("settings.ini/below/a/file.damaged-1.ini")), "damaged");
        reopenFromDisk();
        QCOMPARE(readLong(L"a"), -1);
        QCOMPARE(readLong(L"b"), 2);
        QCOMPARE(readLong(L"c"), 3);
    }

    void writeThatChangesNothingCostsNothing()
    {
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 1));
        const QDateTime longAgo = QDateTime::currentDateTime().addYears(-1);
        setTime(longAgo);
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 1));
        QVERIFY(!Config::deleteEntry(ECfgGroup::Dialogs, L"b"));
        QCOMPARE(time(), longAgo);
    }

    void everyWriteLeavesALaterTime()
    {
        // Otherwise another process would miss one of the same size and write its own older values over it.
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 1));
        const QDateTime ahead = QDateTime::currentDateTime().addSecs(60);
        setTime(ahead);
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 2));
        QVERIFY(time() > ahead);
    }

    void damageFoundByTwoProcessesIsSetAsideOnce()
    {
        const QByteArray garbage(1000, '\x01');
        fill(garbage);
        QProcess writers[3];
        for (int i = 0; i < 3; ++i)
            writers[i].start(QStringLiteral(CONFIGWRITER), {QString::number(i), QStringLiteral("5")});
        for (QProcess& writer : writers) {
            QVERIFY(writer.state() == QProcess::NotRunning || writer.waitForFinished());
            QCOMPARE(writer.exitCode(), 0);
        }
        QCOMPARE(content(QStringLiteral("settings.damaged-1.ini")), garbage);
        QVERIFY(!QFileInfo::exists(path(QStringLiteral("settings.damaged-2.ini"))));
        for (const wchar_t* last : {L"0/last", L"1/last", L"2/last"})
            QCOMPARE(readLong(last), 1004);
    }

    void locksWithoutANameDontHoldWritesUp()
    {
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 1));
        fill(QByteArray(), QStringLiteral("settings.ini.guard"));
        fill(QByteArray(), QStringLiteral("settings.ini.lock"));
        const QDateTime start = QDateTime::currentDateTime();
        QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"a", 2));
        QVERIFY(start.secsTo(time()) < 10);
    }

    void everyReportedWriteOutlivesAKilledWriter()
    {
        for (int round = 0; round < 5; ++round) {
            const QString name = QStringLiteral("round%1").arg(round);
            QProcess writer;
            writer.start(QStringLiteral(CONFIGWRITER), {name, QStringLiteral("9000")});
            QVERIFY(writer.waitForStarted());
            QByteArray reported;
            while (reported.count('\n') < 3 + round) {
                QVERIFY(writer.waitForReadyRead());
                reported += writer.readAllStandardOutput();
            }
            writer.kill();
            QVERIFY(writer.waitForFinished());
            reported += writer.readAllStandardOutput();
            reported.truncate(reported.lastIndexOf('\n'));
            for (const QByteArray& number : reported.split('\n')) {
                const QString key = name + u'/' + QString::fromLatin1(number);
                QCOMPARE(readLong(key.toStdWString()), number.toLong());
            }
            // Also when the writer died with the lock in its hand.
            QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"mine", round));
        }
    }

    void writersAtOnceLoseNothing()
    {
        constexpr int count = 60;
        QProcess first;
        QProcess second;
        first.start(QStringLiteral(CONFIGWRITER), {QStringLiteral("one"), QString::number(count)});
        second.start(QStringLiteral(CONFIGWRITER), {QStringLiteral("two"), QString::number(count)});
        for (long number = 1000; number < 1000 + count; ++number)
            QVERIFY(Config::writeLong(ECfgGroup::Dialogs, L"mine/" + std::to_wstring(number), number));
        for (QProcess* writer : {&first, &second}) {
            QVERIFY(writer->state() == QProcess::NotRunning || writer->waitForFinished());
            QCOMPARE(writer->exitCode(), 0);
        }
        reopenFromDisk();
        for (long number = 1000; number < 1000 + count; ++number)
            for (const wchar_t* name : {L"one/", L"two/", L"mine/"})
                QCOMPARE(readLong(name + std::to_wstring(number)), number);
        QCOMPARE(readLong(L"one/last"), 1000 + count - 1);
        QCOMPARE(readLong(L"two/last"), 1000 + count - 1);
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    void useStore(const QString& name)
    {
        ut::setEnvironment(L"TANDOLIN_CONFIG", path(name).toStdWString());
        Config::reopen();
    }

    /// By another name, because what is known of a file outlives the store that read it.
    void reopenFromDisk()
    {
        const QString copy = QStringLiteral("copy.ini");
        QVERIFY(QFile::copy(QString::fromStdWString(Config::fileName().wide()), path(copy)));
        useStore(copy);
    }

    void fill(const QByteArray& bytes, const QString& name = QStringLiteral("settings.ini"))
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    void setTime(const QDateTime& time)
    {
        QFile file(path(QStringLiteral("settings.ini")));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    QDateTime time() const { return QFileInfo(path(QStringLiteral("settings.ini"))).lastModified(); }

    QByteArray content(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_Config)
#include "tst_config.moc"
