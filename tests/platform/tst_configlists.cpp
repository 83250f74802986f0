#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "support/table.h"
#include "ut/config.h"
#include "ut/environment.h"

#include <memory>

using ut::Config;
using ut::ECfgGroup;
using ERegList = ut::Config::ERegList;

namespace {
constexpr auto group = ECfgGroup::Dialogs;

OdArray<OdString> odList(const QStringList& texts)
{
    OdArray<OdString> list;
    for (const QString& text : texts)
        list.append(text.toStdWString());
    return list;
}

bool save(const QString& key, const QStringList& texts)
{
    return Config::saveListToRegistry(group, key.toStdWString(), odList(texts), 1) == ERegList::Saved;
}

/// The list's texts with blanks between, in brackets; "none" for no key.
QString loaded(const QString& key)
{
    OdArray<OdString> list = {L"left over"};
    const ERegList result = Config::loadListFromRegistry(group, key.toStdWString(), list);
    QStringList texts;
    for (const OdString& text : list)
        texts += QString::fromStdWString(text.wide());
    if (result == ERegList::NoKey)
        return texts.isEmpty() ? "none" : "left over";
    return result == ERegList::Loaded ? '[' + texts.join(' ') + ']' : QString("no such result");
}

bool createNode(const QString& key)
{
    const std::unique_ptr<ut::ConfigNode> node = Config::getIfProfileNode(group, 1);
    return node && node->createNode(key.toStdWString());
}
} // namespace

class tst_ConfigLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        useStore("settings.ini");
    }

    void listsRoundTrip_data()
    {
        const auto row = velmtest::columns<QStringList>("texts");
        row("no text at all", QStringList());
        row("an empty text", {""});
        row("empty texts between others", {"", "a", "", "b", ""});
        row("quotes", {"\"", "\"a\",\"b\"", "'"});
        row("commas and brackets", {"a,b", "[", "],[", "{}"});
        row("slashes of both kinds", {"/", "a/b/", "\\", "\\\"", "\\u0041", "%5C"});
        row("line ends and other control characters",
            {"a\nb", "\r\n", "\t", QString(QChar(0)) + 'z', QString(QChar(127))});
        row("what looks like a variant", {"@Invalid()", "@ByteArray(x)"});
        row("letters beyond ASCII and the first plane",
            {QString::fromUtf8("Ma\u00df \u56f3\u9762"), QString::fromUtf8("\xf0\x9f\x93\x90"),
             QString(QChar(0x202e)) + "x"});
        row("blanks at both ends", {" a ", QString(QChar(0xa0))});
        row("equal texts", {"a", "a"});
        row("a long list", QStringList(5000, "00112233-4455-6677-8899-aabbccddeeff"));
    }
    void listsRoundTrip()
    {
        QFETCH(QStringList, texts);
        QVERIFY(save("Filter/Pinned/x", texts));
        QVERIFY(save("Filter/Pinned/y", {"neighbour"}));
        reopenFromDisk();
        OdArray<OdString> list = {L"left over"};
        QCOMPARE(int(Config::loadListFromRegistry(group, L"Filter/Pinned/x", list)), int(ERegList::Loaded));
        QVERIFY(list == odList(texts));
        QCOMPARE(loaded("Filter/Pinned/y"), "[neighbour]");
    }

    void keysAreToldApart()
    {
        const QStringList keys = {
            "a", "A", "a/b", "a//b", "", "/", "a b", "%", "\\", "%5C", QString::fromUtf8("\u56f3")};
        for (const QString& key : keys)
            QCOMPARE(loaded(key), "none");
        for (const QString& key : keys)
            QVERIFY(save(key, {'<' + key + '>'}));
        reopenFromDisk();
        for (const QString& key : keys)
            QCOMPARE(loaded(key), "[<" + key + ">]");
        OdArray<OdString> list;
        QCOMPARE(int(Config::loadListFromRegistry(ECfgGroup::General, L"a", list)), int(ERegList::NoKey));
    }

    void aSaveReplacesTheWholeList()
    {
        QVERIFY(save("k", {"a", "b", "c"}));
        QVERIFY(save("k", {"d"}));
        QCOMPARE(loaded("k"), "[d]");
        QVERIFY(save("k", {}));
        reopenFromDisk();
        QCOMPARE(loaded("k"), "[]");
    }

    void aListAndAnEntryOfItsNameDontMix()
    {
        QVERIFY(Config::writeString(group, L"k", L"entry"));
        QCOMPARE(loaded("k"), "none");
        QVERIFY(save("k", {"a"}));
        OdString text;
        QVERIFY(Config::read(group, L"k", text) && text == OdString(L"entry"));
        QVERIFY(Config::deleteEntry(group, L"k"));
        QCOMPARE(loaded("k"), "[a]");
    }

    void thereIsOneProfile()
    {
        for (const int profile : {0, 2, -1}) {
            QVERIFY(!Config::getIfProfileNode(group, profile));
            QCOMPARE(int(Config::saveListToRegistry(group, L"k", odList({"a"}), profile)), int(ERegList::NotSaved));
        }
        QCOMPARE(loaded("k"), "none");
        QVERIFY(Config::getIfProfileNode(group, 1));
    }

    void aGroupGoesWithAllThatIsBelow()
    {
        QVERIFY(save("a/b", {"1"}));
        QVERIFY(save("a/b/c", {"2"}));
        QVERIFY(Config::writeLong(group, L"a/b/d", 3));
        QVERIFY(Config::writeLong(group, L"a/b", 4));
        QVERIFY(save("a/bb", {"5"}));
        QVERIFY(save("a/B", {"6"}));
        QVERIFY(save("a", {"7"}));
        QCOMPARE(int(Config::saveListToRegistry(ECfgGroup::General, L"a/b", odList({"8"}), 1)), int(ERegList::Saved));
        QVERIFY(Config::deleteGroup(group, L"a/b"));
        QVERIFY(!Config::deleteGroup(group, L"a/b"));
        reopenFromDisk();
        QCOMPARE(loaded("a/b") + loaded("a/b/c"), "nonenone");
        long number = 0;
        QVERIFY(!Config::read(group, L"a/b/d", number) && !Config::read(group, L"a/b", number));
        QCOMPARE(loaded("a/bb") + loaded("a/B") + loaded("a"), "[5][6][7]");
        OdArray<OdString> list;
        QCOMPARE(int(Config::loadListFromRegistry(ECfgGroup::General, L"a/b", list)), int(ERegList::Loaded));
        QVERIFY(!Config::deleteGroup(group, L"a/bbb"));
        QVERIFY(!Config::deleteGroup(group, L"missing/"));
    }

    void aKeyOfOddSignsGoesAlone()
    {
        QVERIFY(save("%", {"1"}));
        QVERIFY(save("\\", {"2"}));
        QVERIFY(Config::deleteGroup(group, L"%"));
        QCOMPARE(loaded("%") + loaded("\\"), "none[2]");
    }

    void anEmptiedKeyStands()
    {
        QVERIFY(save("a/b", {"1"}));
        Config::deleteGroup(group, L"a/b");
        QVERIFY(createNode("a/b/"));
        reopenFromDisk();
        QCOMPARE(loaded("a/b"), "[]");
        QCOMPARE(loaded("a"), "none");
        QVERIFY(Config::deleteGroup(group, L"a/b"));
        QCOMPARE(loaded("a/b"), "none");
        QVERIFY(save("c", {"2"}));
        QVERIFY(createNode("c/")); // over a list
        QCOMPARE(loaded("c"), "[]");
    }

    void aDamagedEntryReadsAsAnEmptyListAndStays_data()
    {
        const auto row = velmtest::columns<QString>("text");
        row("cut off", "[\"a\",\"b");
        row("no list at all", "a, b");
        row("another form", "{\"a\":1}");
    }
    void aDamagedEntryReadsAsAnEmptyListAndStays()
    {
        QFETCH(QString, text);
        QVERIFY(Config::writeString(group, L"k/", text.toStdWString()));
        QCOMPARE(loaded("k"), "[]");
        OdString read;
        QVERIFY(Config::read(group, L"k/", read));
        QCOMPARE(QString::fromStdWString(read.wide()), text);
    }

    void itemsThatAreNoTextsReadAsEmptyOnes()
    {
        QVERIFY(Config::writeString(group, L"k/", L"[\"a\",7,null,[\"b\"],\"c\"]"));
        QCOMPARE(loaded("k"), "[a    c]");
    }

    void aStoreThatCantBeWrittenIsToldAndLastsForTheProcess()
    {
        QFile file(m_folder->filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        useStore("file/below.ini");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("below\\.ini.* can't be written"));
        QVERIFY(!save("k", {"a"}));
        QCOMPARE(loaded("k"), "[a]");
        QVERIFY(!createNode("k/"));
        QCOMPARE(loaded("k"), "[]");
        QVERIFY(Config::deleteGroup(group, L"k"));
        QCOMPARE(loaded("k"), "none");
    }

private:
    void useStore(const QString& name)
    {
        ut::setEnvironment(L"TANDOLIN_CONFIG", m_folder->filePath(name).toStdWString());
        Config::reopen();
    }
    /// By another name, because what is known of a file outlives the store that read it.
    void reopenFromDisk()
    {
        QVERIFY(QFile::copy(QString::fromStdWString(Config::fileName().wide()), m_folder->filePath("copy.ini")));
        useStore("copy.ini");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_ConfigLists)
#include "tst_configlists.moc"
