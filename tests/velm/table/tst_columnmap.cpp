#include "velm/table/columnmap.h"

#include <QTest>

using namespace velm;

namespace {
/// The shown columns, and the places of all: "20 0:1 1:h1 2:0".
QString textOf(const ColumnMap& map)
{
    QString text;
    for (const int source : map.order())
        text += QString::number(source);
    for (int source = 0; source < map.sourceCount(); ++source)
        text += QString(" %1:%2%3")
                    .arg(source)
                    .arg(map.isVisible(source) ? QString() : QString("h"))
                    .arg(map.state(source)->position);
    return text;
}

ColumnMap mapOf(int count, const std::vector<int>& order)
{
    std::vector<ColumnState> states(static_cast<std::size_t>(count));
    for (int column = 0; column < count; ++column)
        states[static_cast<std::size_t>(column)].position = column;
    ColumnMap map;
    map.reset(states, order);
    return map;
}
} // namespace

class TestColumnMap : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hiddenColumnsKeepTheirPlace()
    {
        ColumnMap map = mapOf(4, {3, 0, 2});
        QCOMPARE(textOf(map), "302 0:1 1:h1 2:2 3:0");
        map.setOrder(map.orderWithout(0));
        QCOMPARE(textOf(map), "32 0:h1 1:h1 2:1 3:0");
        map.setOrder(map.orderWith(0));
        QCOMPARE(textOf(map), "302 0:1 1:h1 2:2 3:0");
        // A place that is no more, and one that never was: where the source has the column, at most the end.
        map.setOrder({2});
        map.setPosition(3, 9);
        map.setPosition(0, -1);
        QCOMPARE(map.orderWith(3), (std::vector{2, 3}));
        QCOMPARE(map.orderWith(0), (std::vector{0, 2}));
        for (const int none : {-1, 2, 4}) // 2 is shown already
            QCOMPARE(map.orderWith(none), std::vector{2});
        QCOMPARE(map.hiddenBefore(2), 2);
        QCOMPARE(map.hiddenBefore(99), 3);
        QCOMPARE(map.hiddenBefore(-1), 0);
    }

    void columnsThatArentThereAreGivenBackOrIgnored()
    {
        ColumnMap map = mapOf(3, {2, 0});
        for (const int column : {-2, -1, 3, 99}) {
            QCOMPARE(map.toProxy(column), column);
            QCOMPARE(map.toSource(column), column);
            QVERIFY(!map.isVisible(column) && !map.state(column));
            map.setWidth(column, 7);
            map.setPosition(column, 7);
        }
        QCOMPARE(map.toSource(2), 2); // shown are two
        QCOMPARE(textOf(map), "20 0:1 1:h1 2:0");
        QCOMPARE(ColumnMap().toSource(0), 0);
    }

    void insertedColumnsAreHiddenBehindTheShownOnesBefore()
    {
        ColumnMap map = mapOf(4, {3, 0, 2});
        map.insert(2, {{-1, 80, 5, true}, {-1, 80, 0, true}});
        QCOMPARE(textOf(map), "504 0:1 1:h3 2:h1 3:h2 4:2 5:0");
        QCOMPARE(map.state(2)->width, 80);
        QCOMPARE(map.state(2)->proportionalWidth, 5);
        map.remove(1, 3);
        QCOMPARE(textOf(map), "201 0:1 1:2 2:0");
        map.remove(0, 2);
        QCOMPARE(textOf(map), "");
    }
};

QTEST_APPLESS_MAIN(TestColumnMap)
#include "tst_columnmap.moc"
