#include "ut/signal.h"

#include <QStringList>
#include <QTest>

#include <optional>

using Signal = ut::SignalBase<void(int), ut::MutexDisabledPolicy>;

class TestSignal : public QObject
{
    Q_OBJECT
    QStringList m_log;

    Signal::Slot slot(const QString& name)
    {
        return [this, name](int value) { m_log += name + QString::number(value); };
    }

private Q_SLOTS:
    void init() { m_log.clear(); }

    void functionsAreCalledInTheOrderOfTheirConnection()
    {
        Signal signal;
        ut::SignalConnection first = signal.connect(slot("a"));
        ut::SignalConnection second = signal.connect(slot("b"));
        const ut::SignalConnection third = signal.connect(slot("c"));
        signal(1);
        second = {};
        signal(2);
        first = signal.connect(slot("d")); // lets go of a
        signal(3);
        QCOMPARE(m_log, QStringList({"a1", "b1", "c1", "a2", "c2", "c3", "d3"}));
    }

    void aCalledFunctionMayChangeTheConnectionsOrEndTheSignal()
    {
        auto signal = std::make_unique<Signal>();
        ut::SignalConnection late;
        std::optional<ut::SignalConnection> cut;
        const ut::SignalConnection first = signal->connect([&](int) {
            late = signal->connect(slot("late"));
            cut.reset();
            signal.reset();
        });
        cut = signal->connect(slot("cut"));
        const ut::SignalConnection last = signal->connect(slot("last"));
        (*signal)(1);
        QCOMPARE(m_log, QStringList({"last1"}));
        QVERIFY(!signal);
    }
};

QTEST_APPLESS_MAIN(TestSignal)
#include "tst_signal.moc"
