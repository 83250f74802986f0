#include "velm/filter/pinnedpropertiesmodel.h"

#include "fakeproperties.h"

#include "support/members.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "support/signallog.h"
#include "ut/config.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <climits>

using namespace velm;
using velmtest::FakeProperties;
using velmtest::SignalLog;

namespace {
constexpr auto group = static_cast<ut::ECfgGroup>(6);

QString id(char letter)
{
    return QString("00000000-0000-0000-0000-00000000000") + letter;
}

/// Properties a to e with those as the ends of their identities.
struct Properties : FakeProperties
{
    explicit Properties(const QString& letters = "abcde", const QString& kind = "Entities")
    {
        for (const QChar letter : letters)
            append({letter, "string", {"g"}, {}, {}, id(letter.toLatin1())});
        subCategory = kind;
    }
};

/// What stands in the store: the last letters of the identities, "none" for no key.
QString saved(const QString& kind = "Entities")
{
    OdArray<OdString> list;
    const auto result = ut::Config::loadListFromRegistry(group, odFromQt("Filter/Pinned/" + kind), list);
    QString letters;
    for (const OdString& text : list)
        letters += toQt(text).right(1);
    return int(result) == 1 ? QString("none") : '[' + letters + ']';
}

void save(const QStringList& ids, const QString& kind = "Entities")
{
    OdArray<OdString> list;
    for (const QString& text : ids)
        list.append(odFromQt(text));
    QCOMPARE(int(ut::Config::saveListToRegistry(group, odFromQt("Filter/Pinned/" + kind), list, 1)), 4);
}

QString text(const PinnedPropertiesModel& model)
{
    return velmtest::rowText(model, PinnedPropertiesModel::NameRole);
}

struct Pinned : PinnedPropertiesModel
{
    explicit Pinned(const Properties& properties) { setProperties(properties); }

    QAbstractItemModelTester tester{this, QAbstractItemModelTester::FailureReportingMode::QtTest};
};
} // namespace

class TestPinnedProperties : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_config = std::make_unique<velmtest::TemporaryConfig>(); }
    void cleanup() { m_config.reset(); }

    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(PinnedPropertiesModel::staticMetaObject),
                 "signal: pinStateChanged(int) method: isPinned(int) pinProperty(int,bool) pinProperty(int) "
                 "unpinProperty(int) togglePinned(int) loadPinnedProperties()");
        const PinnedPropertiesModel model;
        QCOMPARE(model.roleNames(), (QHash<int, QByteArray>{{256, "name"}, {257, "propertyIndex"}, {258, "tooltip"}}));
        QVERIFY(!model.getProperties());
    }

    void aFavouriteReadsWithItsUnitAndItsPath()
    {
        Properties properties;
        properties.change(1, {"width", "real", {"g"}, "mm", {}, id('b')});
        Pinned model(properties);
        model.pinProperty(1);
        QStringList texts;
        for (int role = 255; role <= 259; ++role)
            texts += model.index(0, 0).data(role).toString();
        QCOMPARE(texts.join('|'), "|width [mm]|1|g/width{mm}|");
        QVERIFY(!model.data(model.index(1, 0), 256).isValid());
    }

    void favouritesKeepTheOrderInWhichTheyWereChosen()
    {
        const Properties properties;
        Pinned model(properties);
        SignalLog log(model);
        QVERIFY(!model.isPinned(3));
        model.pinProperty(3);
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 0, 0) rowsInserted(-, 0, 0) pinStateChanged(3)");
        model.togglePinned(0);
        model.pinProperty(3);
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1) pinStateChanged(0)");
        QCOMPARE(text(model), "d a");
        QVERIFY(model.isPinned(3) && model.isPinned(0));
        QCOMPARE(saved(), "[da]");
        model.togglePinned(3);
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 0, 0) rowsRemoved(-, 0, 0) pinStateChanged(3)");
        model.unpinProperty(3);
        QCOMPARE(log.take(), QString());
        QCOMPARE(text(model), "a");
        QVERIFY(!model.isPinned(3));
        QCOMPARE(saved(), "[a]");
    }

    void aSaveIsDoneBeforeThePinIsTold()
    {
        const Properties properties;
        Pinned model(properties);
        QStringList seen;
        connect(&model, &QAbstractItemModel::rowsInserted, this,
                [&] { seen += saved() + ' ' + (model.isPinned(1) ? "pinned" : "not yet"); });
        connect(&model, &PinnedPropertiesModel::pinStateChanged, this, [&] { seen += saved(); });
        model.pinProperty(1);
        model.unpinProperty(1);
        QCOMPARE(seen, QStringList({"none not yet", "[b]", "[]"}));
    }

    void aPinNeedNotBeSaved()
    {
        const Properties properties;
        Pinned model(properties);
        model.pinProperty(1, false);
        QCOMPARE(saved(), "none");
        model.pinProperty(2); // saves all
        QCOMPARE(saved(), "[bc]");
    }

    void whatIsNoPropertyIsntPinned()
    {
        Properties properties;
        properties.append({"", "string", {}, {}, {}, id('f')});
        Pinned model(properties);
        SignalLog log(model);
        for (const int bad : {-1, INT_MIN, 5, 6, INT_MAX}) {
            model.pinProperty(bad);
            model.unpinProperty(bad);
            model.togglePinned(bad);
            QVERIFY(!model.isPinned(bad));
        }
        QCOMPARE(log.take(), QString());
        PinnedPropertiesModel withoutProperties;
        withoutProperties.pinProperty(0);
        withoutProperties.loadPinnedProperties();
        QCOMPARE(withoutProperties.rowCount(), 0);
        QCOMPARE(saved(), "none");
    }

    void favouritesOutliveTheProcess()
    {
        const Properties properties;
        {
            Pinned model(properties);
            for (const int row : {4, 0, 2})
                model.pinProperty(row);
        }
        m_config->reopen();
        const Properties others("ceab"); // the rows differ, the identities stay
        Pinned model(others);
        QCOMPARE(model.rowCount(), 0); // until the page asks
        SignalLog log(model);
        model.loadPinnedProperties();
        QCOMPARE(text(model), "e a c");
        QCOMPARE(velmtest::rowText(model, PinnedPropertiesModel::PropertyIndexRole), "1 2 0");
        QCOMPARE(log.take().count("pinStateChanged"), 3);
        model.loadPinnedProperties();
        QCOMPARE(log.take(), QString());
        QCOMPARE(saved(), "[eac]"); // a load saves nothing anew
    }

    void identitiesThatArentKnownAreKeptBehindTheOthers()
    {
        save({id('x'), id('b'), "no identity", id('y'), id('a')});
        const Properties properties;
        Pinned model(properties);
        model.loadPinnedProperties();
        QCOMPARE(text(model), "b a");
        QCOMPARE(saved(), "[xbyya]");
        model.pinProperty(2);
        QCOMPARE(saved(), "[bacxyy]");
        model.unpinProperty(2);
        model.loadPinnedProperties(); // not twice as many of them
        model.unpinProperty(0);
        QCOMPARE(saved(), "[bxyy]");
        model.unpinProperty(1);
        QCOMPARE(saved(), "[xyy]");
        OdArray<OdString> list;
        ut::Config::loadListFromRegistry(group, L"Filter/Pinned/Entities", list);
        QCOMPARE(toQt(list[1]), "no identity");
    }

    void anEmptiedListStandsAndMeansThatNothingIsPinned()
    {
        Properties properties;
        properties.initial = {ut::UUID(odFromQt(id('c')))};
        save({id('q')}, "Entities/below");
        {
            Pinned model(properties);
            model.loadPinnedProperties();
            QCOMPARE(text(model), "c");
            QCOMPARE(saved(), "[c]");
            model.unpinProperty(2);
        }
        QCOMPARE(saved(), "[]");
        m_config->reopen();
        Pinned model(properties);
        model.loadPinnedProperties();
        QCOMPARE(model.rowCount(), 0);
        model.pinProperty(1);
        QCOMPARE(saved(), "[b]");
    }

    void whoNeverChoseBeginsWithTheModelsOwn()
    {
        Properties properties;
        for (const char letter : {'d', 'x', 'b', 'd'})
            properties.initial.emplace_back(odFromQt(id(letter)));
        properties.initial.push_back(ut::UUID::s_cNil);
        Pinned model(properties);
        model.loadPinnedProperties();
        QCOMPARE(text(model), "d b");
        QCOMPARE(saved(), "[db]"); // those that aren't there are dropped
    }

    void initialOnesThatArentThereLeaveNoKey()
    {
        Properties properties;
        properties.initial = {ut::UUID(odFromQt(id('x')))};
        Pinned model(properties);
        model.loadPinnedProperties();
        QCOMPARE(saved(), "none");
        properties.initial = {ut::UUID(odFromQt(id('a')))};
        model.loadPinnedProperties();
        QCOMPARE(saved(), "[a]");
    }

    void propertiesWithoutALastingIdentityArentSaved()
    {
        Properties properties("ab");
        properties.append({"passing", "string", {}, {}, {}, {}});
        Pinned model(properties);
        model.pinProperty(2);
        QCOMPARE(saved(), "[]");
        model.pinProperty(1);
        QCOMPARE(saved(), "[b]");
        QCOMPARE(text(model), "passing b");
    }

    void withoutAKeyFavouritesLiveInMemory()
    {
        Properties properties("ab", QString());
        properties.initial = {ut::UUID(odFromQt(id('a')))};
        Pinned model(properties);
        model.loadPinnedProperties();
        QCOMPARE(model.rowCount(), 0);
        model.pinProperty(1);
        model.unpinProperty(1);
        model.pinProperty(0);
        OdArray<OdString> groups;
        QVERIFY(!ut::Config::listGroups(group, groups, L""));
        QCOMPARE(text(model), "a");
    }

    void eachKindOfModelHasAListAndOneWithoutKeepsTheFormerKey()
    {
        const Properties entities;
        const Properties sheets("abc", "Sheets");
        const Properties nameless("abcde", QString());
        Pinned model(entities);
        model.pinProperty(0);
        SignalLog log(model);
        model.setProperties(entities);
        QCOMPARE(log.take(), QString());
        model.setProperties(sheets);
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        QVERIFY(!model.isPinned(0));
        model.pinProperty(1);
        QCOMPARE(saved() + saved("Sheets"), "[a][b]");
        model.setProperties(nameless);
        model.pinProperty(2);
        QCOMPARE(saved() + saved("Sheets"), "[a][c]");
    }

    void aPropertyThatWentCanBeUnpinned()
    {
        Properties properties;
        Pinned model(properties);
        model.pinProperty(4);
        properties.reset({});
        QCOMPARE(text(model), "e"); // what was read stays
        model.togglePinned(4);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(saved(), "[]");
    }

    void anEntryThatIsNoListReadsAsAnEmptyOne()
    {
        save({id('a')});
        // The list stands in the nameless entry below its key.
        for (const wchar_t* damage : {L"[\"00000000-0000", L"{}", L"7", L"\"text\""}) {
            QVERIFY(ut::Config::writeString(group, L"Filter/Pinned/Entities/", damage));
            const Properties properties;
            Pinned model(properties);
            model.loadPinnedProperties();
            QCOMPARE(model.rowCount(), 0);
        }
    }

private:
    std::unique_ptr<velmtest::TemporaryConfig> m_config;
};

QTEST_GUILESS_MAIN(TestPinnedProperties)
#include "tst_pinnedproperties.moc"
