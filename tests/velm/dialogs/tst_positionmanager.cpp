#include "velm/dialogs/positionmanager.h"

#include <QStringList>
#include <QTest>

using namespace velm;

namespace {
struct Recorder : Positioner
{
    Recorder(const QString& name, QStringList& log) : m_name(name), m_log(log) {}
    void update() override { m_log += m_name; }

    QString m_name;
    QStringList& m_log;
};
} // namespace

class TestPositionManager : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void positionersAreUpdatedInTheirOrder()
    {
        QStringList log;
        Recorder a("a", log);
        Recorder b("b", log);
        Recorder c("c", log);
        PositionManager& manager = PositionManager::instance();
        QCOMPARE(&manager, &PositionManager::instance());
        manager.update();
        manager.remove(&a);
        for (Positioner* positioner : {&c, &a, &c, &b, &a})
            manager.add(positioner);
        manager.update();
        QCOMPARE(std::exchange(log, {}), QStringList({"c", "a", "c", "b", "a"}));
        manager.remove(&c);
        manager.update();
        QCOMPARE(std::exchange(log, {}), QStringList({"a", "b", "a"}));
        manager.remove(&a);
        manager.remove(&b);
        manager.update();
        QCOMPARE(log, QStringList());
        static_assert(!std::has_virtual_destructor_v<Positioner>);
    }
};

QTEST_APPLESS_MAIN(TestPositionManager)
#include "tst_positionmanager.moc"
