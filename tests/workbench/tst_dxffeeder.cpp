#include "drawing/dxffeeder.h"

#include "support/table.h"

#include <QtTest>

#include <algorithm>
#include <memory>

using namespace workbench;

/// What the road into dxflib must not depend on.
class DxfFeederTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leftoversInMemoryAddNoEntity_data()
    {
        const auto row = velmtest::columns<int>("leftover");
        row("that look like a point", DL_ENTITY_POINT);
        row("that look like a line", DL_ENTITY_LINE);
    }
    void leftoversInMemoryAddNoEntity()
    {
        QFETCH(const int, leftover);
        DxfGroups groups;
        for (const auto& [code, value] :
             {std::pair{0, "SECTION"}, std::pair{2, "ENTITIES"}, std::pair{0, "POINT"}, std::pair{8, "0"},
              std::pair{10, "1"}, std::pair{20, "2"}, std::pair{0, "ENDSEC"}, std::pair{0, "EOF"}})
            groups.groups.push_back({code, value});
        DatabaseBuilder builder(true);
        const std::unique_ptr<int[]> memory(new int[sizeof(DxfFeeder) / sizeof(int) + 1]);
        std::fill_n(memory.get(), sizeof(DxfFeeder) / sizeof(int), leftover);
        auto* feeder = new (memory.get()) DxfFeeder(groups, builder);
        QVERIFY(feeder->feed([](double) { return true; }));
        feeder->~DxfFeeder();
        QCOMPARE(builder.entityCount(), 1);
    }
};

QTEST_GUILESS_MAIN(DxfFeederTest)
#include "tst_dxffeeder.moc"
