#include "filter/filterstore.h"

#include "support/fakefilterproperties.h"
#include "support/table.h"
#include "velm/bridge/conversions.h"
#include "velm/filter/filteroperatorsmodel.h"

#include <QDir>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace velm;
using velmtest::FakeFilterProperties;
using velmtest::FakeFilterProperty;
using workbench::FilterStore;

namespace {
constexpr int is = FilterOperatorsModel::Is;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "?";
}

bool setContent(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

class TestFilterStore : public QObject
{
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_disk;
    QStringList m_told;
    FakeFilterProperties m_texts{{{"12a54bd1-57c6-4ee1-9a3e-2f1d57a7f0aa", "Name", "string", {}, {}}}};

    QString folder() const { return m_disk->filePath("deep/filters"); }
    FilterStore store()
    {
        return FilterStore(folder(), [this](const QString& message) { m_told += message; });
    }
    static FilterData named(const QString& value) { return {{{0, is, value}}}; }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files); }
    QString onlyFile() const { return folder() + '/' + files().value(0); }

    std::optional<FilterData> load(FilterStore& store, const QString& name)
    {
        QStringList missing;
        OdString version;
        const std::optional<FilterData> filter = store.load(name, m_texts, missing, version);
        return missing.isEmpty() && version.isEmpty() ? filter : std::nullopt;
    }

private Q_SLOTS:
    void init()
    {
        m_disk = std::make_unique<QTemporaryDir>();
        m_told.clear();
    }
    void cleanup() { QCOMPARE(m_told, QStringList()); }

    void aFileThatIsCutOffLoadsAsNothing()
    {
        FilterStore store = this->store();
        store.save(named("x"), m_texts, "a");
        const QString path = onlyFile();
        const QByteArray whole = contentOf(path);
        for (qsizetype size = 0; size < whole.trimmed().size(); ++size) {
            QVERIFY(setContent(path, whole.left(size)));
            QVERIFY(!load(store, "a"));
            QCOMPARE(store.getFilterList(), QStringList());
            QCOMPARE(contentOf(path), whole.left(size));
        }
        QVERIFY(setContent(path, whole));
        QCOMPARE(load(store, "a"), std::optional(named("x")));
        QCOMPARE(store.getFilterList(), QStringList("a"));
        QCoreApplication::processEvents();
        QVERIFY(!std::exchange(m_told, {}).isEmpty());
    }

    void aFileThatIsNoFilterIsToldOnceAndKept_data()
    {
        const auto row = velmtest::columns<QByteArray, QByteArray>("from", "to");
        row("the file is empty", "", "");
        row("the file holds another text", "", "[General]\nname=a\n");
        row("the file holds zeros", QByteArray(), QByteArray(3, '\0'));
        row("the file holds a list", "", "[]");
        row("the file holds another object", "", "{}");
        row("something stands behind the filter", "\"version\": 1\n}", "\"version\": 1\n}\n}");
        row("there is no version", "\"version\": 1", "\"other\": 1");
        row("the version is below the first", "\"version\": 1", "\"version\": 0");
        row("the version is a text", "\"version\": 1", "\"version\": \"1\"");
        row("there is no name", "\"name\": \"a\"", "\"Name\": \"a\"");
        row("the name is that of another file", "\"name\": \"a\"", "\"name\": \"A\"");
        row("there are no conjunctions", "\"conjunctions\"", "\"filter\"");
        row("a conjunction isn't a list", "\"conjunctions\": [", "\"conjunctions\": [ {},");
        row("a tag isn't an object", "\"conjunctions\": [", "\"conjunctions\": [ [1],");
        row("a tag has no value", "\"value\"", "\"Value\"");
        row("a tag has no property", "\"property\"", "\"properties\"");
        row("a property has no identity", "\"id\"", "\"Id\"");
        row("a path isn't a list", "\"path\": [", "\"path\": 1, \"names\": [");
        row("an operator isn't known", "\"Is\"", "\"is\"");
    }
    void aFileThatIsNoFilterIsToldOnceAndKept()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        FilterStore store = this->store();
        store.save(named("x"), m_texts, "a");
        const QString path = onlyFile();
        QByteArray content = contentOf(path);
        QVERIFY(content.contains(from));
        content = from.isEmpty() ? to : content.replace(from, to);
        QVERIFY(setContent(path, content));

        FilterStore fresh = this->store();
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(fresh.getFilterList(), QStringList());
            QVERIFY(!load(fresh, "a"));
            QCoreApplication::processEvents();
        }
        QCOMPARE(m_told.size(), 1);
        QVERIFY2(m_told.takeFirst().contains(QDir::toNativeSeparators(path)), "the message names the file");
        fresh.save(named("y"), m_texts, "b");
        fresh.rename("b", "c");
        fresh.remove("a");
        QCOMPARE(contentOf(path), content);

        // Its name is free for another filter.
        fresh.save(named("z"), m_texts, "a");
        QCOMPARE(load(fresh, "a"), std::optional(named("z")));
        QCOMPARE(contentOf(path + ".damaged"), content);
        QCOMPARE(m_told.size(), 1);
        QVERIFY2(m_told.takeFirst().contains(".damaged"), "the message says where the file is");
        QVERIFY(setContent(path, content));
        fresh.save(named("z"), m_texts, "a");
        QCOMPARE(contentOf(path + ".damaged2"), content);
        QCOMPARE(fresh.getFilterList(), (QStringList{"a", "c"}));
        QCoreApplication::processEvents();
        m_told.clear();
    }

    void aHugeFileIsNotRead()
    {
        FilterStore store = this->store();
        store.save(named("x"), m_texts, "a");
        QVERIFY(QFile::resize(onlyFile(), qint64(1) << 33));
        QCOMPARE(store.getFilterList(), QStringList());
        QVERIFY(!load(store, "a"));
        QTRY_COMPARE(m_told.size(), 1);
        m_told.clear();
    }

    void aNewerFileNamesWhatItRequires_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("head", "required");
        row("the program's version", "\"version\": 2, \"requires\": \"27.1\"", "27.1");
        row("no program's version", "\"version\": 3", "3");
    }
    void aNewerFileNamesWhatItRequires()
    {
        QFETCH(QByteArray, head);
        QFETCH(QString, required);
        FilterStore store = this->store();
        store.save(named("x"), m_texts, "a");
        const QByteArray content = contentOf(onlyFile())
                                       .replace("\"version\": 1", head + ", \"more\": [1.5, null]")
                                       .replace("conjunctions", "unknown");
        QVERIFY(setContent(onlyFile(), content));
        QCOMPARE(store.getFilterList(), QStringList("a"));
        store.rename("a", "b");
        QCOMPARE(store.getFilterList(), QStringList("b"));
        QStringList missing;
        OdString version;
        QVERIFY(!store.load("b", m_texts, missing, version));
        QCOMPARE(toQt(version), required);
        QCOMPARE(missing, QStringList());
        QJsonObject expected = QJsonDocument::fromJson(content).object();
        expected["name"] = "b";
        QCOMPARE(QJsonDocument::fromJson(contentOf(onlyFile())).object(), expected);
    }

    void anyNameHasAFileOfItsOwn()
    {
        QStringList names{"a",    "A",      "con",     "CON",    "nul.json", ".",      "..",      "../a",
                          "a/b",  "a\\b",   "a.",      "a ",     " a",       "",       "a*?\"<>", "%2e",
                          "a\nb", "\u00e9", "e\u0301", "\u4e2d", "\u6587",   "\u0130", "i",       "~"};
        names += QString(300, 'x');
        names += QString(300, 'x') + 'y';
        names += QString::fromUtf8("\U0001F600").repeated(300);
        FilterStore store = this->store();
        for (const QString& name : names)
            store.save(named(name), m_texts, name);
        const QStringList listed = store.getFilterList();
        QCOMPARE(QSet<QString>(listed.begin(), listed.end()), QSet<QString>(names.begin(), names.end()));
        QSet<QString> fileNames;
        for (const QString& file : files()) {
            fileNames += file.toLower();
            QVERIFY2(file.size() <= 255 && file.back() != '.' && !file.startsWith('.'), qPrintable(file));
        }
        QCOMPARE(fileNames.size(), names.size());
        QCOMPARE(QDir(m_disk->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("deep"));
        FilterStore later = this->store();
        for (const QString& name : names) {
            QCOMPARE(load(later, name), std::optional(named(name)));
            later.remove(name);
            QVERIFY(!load(later, name));
        }
        QCOMPARE(files(), QStringList());
        // Half a character can't be stored, yet the filter is found again.
        later.save(named("half"), m_texts, QChar(0xd83d));
        QCOMPARE(later.getFilterList().size(), 1);
        QCOMPARE(load(later, QChar(0xd83d)), std::optional(named("half")));
        QCOMPARE(load(later, later.getFilterList().first()), std::optional(named("half")));
    }

    void theNamesStandInNaturalOrder()
    {
        FilterStore store = this->store();
        for (const char* name : {"wall 10", "Wall 9", "beam", "Door", "wall 9", "Beam"})
            store.save(named(name), m_texts, name);
        QCOMPARE(store.getFilterList(), (QStringList{"Beam", "beam", "Door", "Wall 9", "wall 9", "wall 10"}));
    }

    void aFilterIsRenamedDuplicatedAndRemoved()
    {
        FilterStore store = this->store();
        store.save(named("1"), m_texts, "a");
        store.rename("a", "A");
        QCOMPARE(store.getFilterList(), QStringList("A"));
        store.rename("A", "A");
        QCOMPARE(load(store, "A"), std::optional(named("1")));
        store.duplicate("A", "B");
        store.save(named("2"), m_texts, "B");
        QCOMPARE(load(store, "A"), std::optional(named("1")));
        QCOMPARE(m_told, QStringList());

        // Nothing that exists is replaced, and nothing comes from nothing.
        store.rename("A", "B");
        store.duplicate("A", "B");
        QCOMPARE(std::exchange(m_told, {}), QStringList(2, "There is a filter \"B\" already."));
        store.rename("C", "D");
        store.duplicate("C", "D");
        QCOMPARE(std::exchange(m_told, {}), QStringList(2, "There is no filter \"C\" any more."));
        store.remove("C");
        QCOMPARE(store.getFilterList(), (QStringList{"A", "B"}));
        QCOMPARE(load(store, "B"), std::optional(named("2")));
        store.remove("B");
        store.remove("B");
        QCOMPARE(store.getFilterList(), QStringList("A"));
    }

    void listenersHearOfNamesThatComeAndGo()
    {
        std::unique_ptr<FilterStore> store(new FilterStore(this->store()));
        QStringList heard;
        auto first = store->addFiltersChangedListener([&] { heard += "1 " + store->getFilterList().join(','); });
        auto second = store->addFiltersChangedListener([&] { heard += "2"; });
        const auto take = [&heard] { return std::exchange(heard, {}).join(' '); };
        store->save(named("1"), m_texts, "a");
        QCOMPARE(take(), "1 a 2");
        store->save(named("2"), m_texts, "a");
        QCOMPARE(take(), "");
        second.reset();
        store->duplicate("a", "b");
        store->rename("a", "c");
        store->remove("c");
        store->remove("c");
        QCOMPARE(take(), "1 a,b 1 b,c 1 b");
        QCoreApplication::processEvents();
        QCOMPARE(take(), "");
        // A listener may drop another one, or the store itself.
        second = store->addFiltersChangedListener([&] { heard += "2"; });
        auto third = store->addFiltersChangedListener([&] {
            heard += "3";
            second.reset();
            store.reset();
        });
        first = store->addFiltersChangedListener([&] { heard += "1"; });
        store->save(named("1"), m_texts, "d");
        QVERIFY(!store);
        QCOMPARE(take(), "2 3");
    }

    void anotherStoreOnTheFolderIsHeard()
    {
        FilterStore mine = store();
        FilterStore theirs = store();
        int heard = 0;
        const auto handle = mine.addFiltersChangedListener([&heard] { ++heard; });
        // The folder isn't there yet.
        theirs.save(named("1"), m_texts, "a");
        QTRY_COMPARE(heard, 1);
        theirs.rename("a", "b");
        QTRY_COMPARE(heard, 2);
        QCOMPARE(mine.getFilterList(), QStringList("b"));
        // Read before the news came: it shows at once, and the listener hears later, once.
        theirs.save(named("1"), m_texts, "c");
        QCOMPARE(mine.getFilterList(), (QStringList{"b", "c"}));
        QCOMPARE(heard, 2);
        QTRY_COMPARE(heard, 3);
        theirs.save(named("2"), m_texts, "c");
        QCOMPARE(load(mine, "c"), std::optional(named("2")));
        // The folder goes and comes back.
        QVERIFY(QDir(folder()).removeRecursively());
        QTRY_COMPARE(heard, 4);
        QCOMPARE(mine.getFilterList(), QStringList());
        theirs.save(named("1"), m_texts, "d");
        QTRY_COMPARE(heard, 5);
    }

    void aFileThatChangesInPlaceShows()
    {
        FilterStore store = this->store();
        store.save(named("x"), m_texts, "a");
        const QByteArray good = contentOf(onlyFile());
        for (int i = 0; i < 3; ++i) {
            QVERIFY(setContent(onlyFile(), QByteArray(good).replace("version", "Version")));
            QCOMPARE(store.getFilterList(), QStringList());
            QVERIFY(setContent(onlyFile(), good));
            QCOMPARE(store.getFilterList(), QStringList("a"));
        }
        QCoreApplication::processEvents();
        QCOMPARE(std::exchange(m_told, {}).size(), 3);
    }

    void whatCantBeWrittenIsTold()
    {
        QVERIFY(setContent(m_disk->filePath("deep"), "a file where the folder should be"));
        FilterStore store = this->store();
        store.save(named("x"), m_texts, "a");
        QCOMPARE(m_told.size(), 1);
        QVERIFY2(m_told.takeFirst().contains("\"a\""), "the message names the filter");
        QCOMPARE(store.getFilterList(), QStringList());
        QVERIFY(!load(store, "a"));
        QCOMPARE(contentOf(m_disk->filePath("deep")), "a file where the folder should be");

        // Without anybody to tell.
        FilterStore silent(folder(), {});
        silent.save(named("x"), m_texts, "a");
    }
};

QTEST_GUILESS_MAIN(TestFilterStore)
#include "tst_filterstore.moc"
