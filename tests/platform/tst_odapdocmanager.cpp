#include <QTest>

#include "od/odapdocmanager.h"
#include "od/oddbdatabase.h"

#include <functional>

/// Writes down what it is told as short words, the name of the current document behind each.
class Recorder : public OdApDocManagerReactor
{
public:
    explicit Recorder(OdApDocManager& manager) : m_manager(manager) {}

    void documentCreateStarted(OdApDocument* d) override { record("createStarted", d); }
    void documentCreated(OdApDocument* d) override { record("created", d); }
    void documentBecameCurrent(OdApDocument* d) override { record("becameCurrent", d); }
    void documentActivated(OdApDocument* d) override { record("activated", d); }
    void documentToBeActivated(OdApDocument* d) override { record("toBeActivated", d); }
    void documentToBeDeactivated(OdApDocument* d) override { record("toBeDeactivated", d); }
    void documentDeactivated(OdApDocument* d) override { record("deactivated", d); }
    void documentToBeDestroyed(OdApDocument* d) override { record("toBeDestroyed", d); }
    void documentDestroyed(const OdString& name) override { add("destroyed", QString::fromStdWString(name.wide())); }

    QStringList take() { return std::exchange(m_told, {}); }

    std::function<void()> onEach;

private:
    static QString name(OdApDocument* d) { return d ? QString::fromStdWString(d->fileName().wide()) : QString(u'-'); }
    void record(const char* what, OdApDocument* d) { add(what, name(d)); }
    void add(const char* what, const QString& of)
    {
        m_told += QStringLiteral("%1(%2) %3").arg(QLatin1String(what), of, name(m_manager.curDocument()));
        if (onEach)
            onEach();
    }

    OdApDocManager& m_manager;
    QStringList m_told;
};

static std::unique_ptr<OdApDocument> document(const wchar_t* name)
{
    return std::make_unique<OdApDocument>(name, std::make_unique<OdDbDatabase>());
}

class tst_OdApDocManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openingTellsInOrder()
    {
        OdApDocManager manager;
        Recorder recorder(manager);
        manager.addReactor(&recorder);
        manager.addReactor(&recorder);
        OdApDocument* a = manager.open(document(L"a"));
        QCOMPARE(recorder.take(), QStringList({"createStarted(a) -", "created(a) -", "toBeActivated(a) -",
                                               "activated(a) a", "becameCurrent(a) a"}));
        OdApDocument* b = manager.open(document(L"b"));
        QCOMPARE(recorder.take(),
                 QStringList({"createStarted(b) a", "created(b) a", "toBeDeactivated(a) a", "toBeActivated(b) a",
                              "deactivated(a) b", "activated(b) b", "becameCurrent(b) b"}));
        QVERIFY(manager.documents() == std::vector<OdApDocument*>({a, b}));
        QVERIFY(!manager.open(nullptr));
        manager.removeReactor(&recorder);
        manager.open(document(L"c"));
        QVERIFY(recorder.take().isEmpty());
    }

    void closingTellsInOrder()
    {
        OdApDocManager manager;
        OdApDocument* a = manager.open(document(L"a"));
        OdApDocument* b = manager.open(document(L"b"));
        OdApDocument* c = manager.open(document(L"c"));
        manager.setCurDocument(a);
        Recorder recorder(manager);
        manager.addReactor(&recorder);

        manager.close(b);
        QCOMPARE(recorder.take(), QStringList({"toBeDestroyed(b) a", "destroyed(b) a"}));
        manager.close(a);
        QCOMPARE(recorder.take(),
                 QStringList({"toBeDestroyed(a) a", "toBeDeactivated(a) a", "toBeActivated(c) a", "deactivated(a) c",
                              "activated(c) c", "becameCurrent(c) c", "destroyed(a) c"}));
        QVERIFY(manager.documents() == std::vector<OdApDocument*>({c}));
        manager.close(c);
        QCOMPARE(recorder.take(), QStringList({"toBeDestroyed(c) c", "becameCurrent(-) -", "destroyed(c) -"}));
        manager.close(c); // gone: only the address is looked at
        manager.close(nullptr);
        QVERIFY(recorder.take().isEmpty());
    }

    void onlyAChangeOfTheCurrentDocumentIsTold()
    {
        OdApDocManager manager;
        OdApDocument* a = manager.open(document(L"a"));
        const auto foreign = document(L"b");
        Recorder recorder(manager);
        manager.addReactor(&recorder);
        manager.setCurDocument(a);
        manager.setCurDocument(foreign.get());
        manager.setCurDocument(nullptr);
        manager.removeReactor(&recorder); // which dies before the manager
        QVERIFY(recorder.take().isEmpty());
        QCOMPARE(manager.curDocument(), a);
    }

    void reactorsMayChangeTheListWhileTold()
    {
        OdApDocManager manager;
        Recorder first(manager);
        auto second = std::make_unique<Recorder>(manager);
        Recorder third(manager);
        Recorder added(manager);
        manager.addReactor(&first);
        manager.addReactor(second.get());
        manager.addReactor(&third);
        first.onEach = [&] {
            manager.removeReactor(&first);
            manager.removeReactor(second.get());
            second.reset();
            manager.addReactor(&added);
        };
        manager.open(document(L"a"));
        manager.removeReactor(&third);
        manager.removeReactor(&added);
        QCOMPARE(first.take().size(), 1);
        QCOMPARE(third.take().size(), 5);
        QCOMPARE(added.take().first(), QStringLiteral("created(a) -")); // from the next operation on
    }

    void destructorClosesAll()
    {
        auto manager = std::make_unique<OdApDocManager>();
        Recorder recorder(*manager);
        manager->open(document(L"a"));
        manager->open(document(L"b"));
        manager->addReactor(&recorder);
        manager.reset();
        const QStringList told = recorder.take();
        QCOMPARE(told.filter(QStringLiteral("toBeDestroyed")).size(), 2);
        QCOMPARE(told.last(), QStringLiteral("destroyed(a) -"));
    }
};

QTEST_APPLESS_MAIN(tst_OdApDocManager)
#include "tst_odapdocmanager.moc"
