#include "velm/services/qttasktraitssource.h"

#include "support/vtableslots.h"

#include <QTest>

#include <optional>
#include <utility>

using namespace velm::dwghealth;
using oc::dwghealth::ETaskType;

namespace {
class Traits : public IQtTaskTraits
{
public:
    Traits(ETaskType type, QString text) : m_type(type), m_text(std::move(text)) {}

    ETaskType taskType() const override { return m_type; }
    QString traitText1() const override { return m_text; }
    QString traitText2() const override { return {}; }
    QString traitText3() const override { return {}; }
    QString traitText4() const override { return {}; }
    bool traitFlag1() const override { return false; }
    std::shared_ptr<void> traitObject1() const override { return {}; }
    std::shared_ptr<void> traitObject2(std::shared_ptr<void> argument) const override { return argument; }
    bool traitFlag2() const override { return false; }

private:
    ETaskType m_type;
    QString m_text;
};

class Source : public QtTaskTraitsSource
{
public:
    explicit Source(QString name, std::vector<ETaskType> types) : m_name(std::move(name)), m_types(std::move(types)) {}

    void initTraits() override
    {
        ++asked;
        for (const ETaskType type : m_types)
            addTraits(std::make_shared<Traits>(type, m_name));
        addTraits(nullptr);
    }
    void add(std::shared_ptr<IQtTaskTraits> traits) { addTraits(std::move(traits)); }

    int asked = 0;

private:
    QString m_name;
    std::vector<ETaskType> m_types;
};

constexpr auto layers = ETaskType::EmptyLayers;
constexpr auto lines = ETaskType::ZeroLengthLines;

QString textOf(ETaskType type)
{
    return getQtTaskTraits(type).traitText1();
}
} // namespace

class TestTaskTraits : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatNobodyRegisteredIsEmpty()
    {
        const IQtTaskTraits& traits = getQtTaskTraits(layers);
        QCOMPARE(static_cast<int>(traits.taskType()), -1);
        QVERIFY(traits.traitText1().isNull() && traits.traitText2().isNull());
        QVERIFY(traits.traitText3().isNull() && traits.traitText4().isNull());
        QVERIFY(traits.traitFlag1() && traits.traitFlag2());
        QVERIFY(!traits.traitObject1());
        const auto argument = std::make_shared<int>(7);
        QVERIFY(!traits.traitObject2(argument));
        QCOMPARE(argument.use_count(), 1);
        QCOMPARE(&getQtTaskTraits(lines), &traits);
    }

    void sourcesAreAskedOnceTheRegistryIsEmpty()
    {
        Source source("a", {layers});
        QCOMPARE(source.asked, 0);
        QCOMPARE(textOf(layers), QString("a"));
        QCOMPARE(textOf(layers), QString("a"));
        QVERIFY(textOf(lines).isNull());
        QCOMPARE(source.asked, 1);
        // A later source isn't asked as long as anything is registered.
        Source later("b", {lines});
        QVERIFY(textOf(lines).isNull());
        QCOMPARE(later.asked, 0);
    }

    void theFirstRegistrationWinsAndTheSecondTakesItAway()
    {
        Source first("first", {layers, lines});
        QCOMPARE(textOf(layers), QString("first"));
        {
            Source second("second", {});
            second.add(std::make_shared<Traits>(layers, "second"));
            second.add(nullptr);
            QCOMPARE(textOf(layers), QString("first"));
        }
        QCOMPARE(static_cast<int>(getQtTaskTraits(layers).taskType()), -1);
        QCOMPARE(textOf(lines), QString("first"));
        QCOMPARE(first.asked, 1);
    }

    void aSourceMayEndAnotherWhileItIsAsked()
    {
        struct Ending : Source
        {
            Ending() : Source("ending", {layers}) {}
            void initTraits() override
            {
                other.reset();
                Source::initTraits();
            }
            std::optional<Source> other; // lies behind its owner, and so is asked after it
        };
        Ending ending;
        ending.other.emplace("ended", std::vector<ETaskType>{lines});
        QCOMPARE(textOf(layers), QString("ending"));
        QVERIFY(textOf(lines).isNull());
    }

    void theOperationsKeepTheirSlots()
    {
#ifdef VELM_READS_VTABLES
        using velmtest::slotOf;
        // There is no virtual destructor before them.
        QCOMPARE((QList{slotOf(&IQtTaskTraits::taskType), slotOf(&IQtTaskTraits::traitText1),
                        slotOf(&IQtTaskTraits::traitText2), slotOf(&IQtTaskTraits::traitText3),
                        slotOf(&IQtTaskTraits::traitText4), slotOf(&IQtTaskTraits::traitFlag1),
                        slotOf(&IQtTaskTraits::traitObject1), slotOf(&IQtTaskTraits::traitObject2),
                        slotOf(&IQtTaskTraits::traitFlag2)}),
                 velmtest::slotsFrom(0, 9));
#else
        QSKIP("only read where the tables are laid out so");
#endif
    }

    void aSourceThatWentIsForgotten()
    {
        {
            Source source("gone", {layers});
            QCOMPARE(textOf(layers), QString("gone"));
        }
        QVERIFY(textOf(layers).isNull());
        Source next("next", {layers});
        QCOMPARE(textOf(layers), QString("next"));
    }

    void aCopyHoldsTheSameKinds()
    {
        Source source("a", {layers});
        QCOMPARE(textOf(layers), QString("a"));
        {
            const Source copy = source;
            {
                const Source other = source;
            }
            QCOMPARE(textOf(layers), QString("a"));
            QCOMPARE(copy.asked, 1); // as its original by then: a copy isn't a source
        }
        // The copy recorded the kind, so its end takes the traits away, and they are asked for again.
        QCOMPARE(textOf(layers), QString("a"));
        QCOMPARE(source.asked, 3);
    }
};

QTEST_APPLESS_MAIN(TestTaskTraits)

#include "tst_tasktraits.moc"
