#include "velm/dialogs/tooltipposition.h"

#include "support/table.h"

#include <QTest>

class TestTooltipPosition : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTipFlipsAtTheEdges_data()
    {
        const auto row = velmtest::columns<QPoint, QPoint>("cursor", "expected");
        row("it fits", QPoint(500, 500), QPoint(510, 520));
        row("both flip", QPoint(950, 990), QPoint(840, 920));
        row("exactly on both edges", QPoint(890, 930), QPoint(900, 950));
        row("one beyond the right edge", QPoint(891, 930), QPoint(781, 950));
        row("one beyond the bottom edge", QPoint(890, 931), QPoint(900, 861));
        row("left and top aren't looked at", QPoint(-900, -900), QPoint(-890, -880));
    }
    void aTipFlipsAtTheEdges()
    {
        QFETCH(QPoint, cursor);
        QTEST(velm::calculateTooltipPosition(100, 50, 10, 20, cursor, QPoint(1000, 1000)), "expected");
    }

    void offsetsMayPointBackAndTipsPassTheFarEdge()
    {
        QCOMPARE(velm::calculateTooltipPosition(300, 300, -5, -5, QPoint(10, 10), QPoint(200, 200)),
                 QPoint(-285, -285));
    }
};

QTEST_APPLESS_MAIN(TestTooltipPosition)
#include "tst_tooltipposition.moc"
