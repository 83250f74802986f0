#include "velm/images/bitmaplookupsize.h"

#include "velm/images/pixelratioholder.h"

#include <QTest>

#include <cstdlib>

using namespace velm;

namespace {
const char* const exhausted = "Bitmap lookup size: no bitmap has been found!";

QList<int> order(BitmapLookupSize sizes)
{
    QList<int> result;
    for (int count = 0; count < 9; ++count)
        result += sizes.getNextLoadSize();
    return result;
}

/// The order for a target, found by asking for ever greater distances.
QList<int> wantedOrder(int target)
{
    const QList<int> ascending{16, 20, 24, 28, 32, 40, 48, 56, 64};
    const auto nearest = [](int target, const QList<int>& candidates) {
        for (int distance = 0;; ++distance)
            for (const int candidate : candidates)
                if (std::abs(candidate - target) == distance)
                    return candidate;
    };
    QList<int> result{nearest(target, ascending)};
    QList<int> powers{64, 32, 16};
    // The target itself doesn't count but for 64, with which the search begins.
    if (target != 64)
        powers.removeOne(target);
    QList<int> rest{nearest(target, powers), 64, 56, 48, 40, 32, 28, 24, 20, 16};
    for (const int size : rest)
        if (!result.contains(size))
            result += size;
    return result;
}
} // namespace

class TestBitmapLookupSize : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theOrderBeginsWithTheNearest()
    {
        QCOMPARE(order({16, 1.0}), QList<int>({16, 32, 64, 56, 48, 40, 28, 24, 20}));
        QCOMPARE(order({16, 1.5}), QList<int>({24, 32, 64, 56, 48, 40, 28, 20, 16}));
        QCOMPARE(order({22, 1.0}), QList<int>({20, 16, 64, 56, 48, 40, 32, 28, 24}));
        QCOMPARE(order({64, -1.0}), QList<int>({64, 56, 48, 40, 32, 28, 24, 20, 16}));
        QCOMPARE(order({-1, 1.25}), QList<int>({20, 16, 64, 56, 48, 40, 32, 28, 24})); // of the default size
    }

    void everySizeAndScaleFollowsTheRules()
    {
        for (int size = 15; size <= 70; ++size)
            for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0, 0.5, -1.0}) {
                const BitmapLookupSize sizes(size, scale);
                const int target = static_cast<int>(scale == -1.0 ? size : size * scale);
                QCOMPARE(sizes.getTargetSize(), target);
                const QList<int> found = order(sizes);
                QVERIFY2(found == wantedOrder(target), qPrintable(QString("%1 at %2").arg(size).arg(scale)));
                if (scale > 0.0)
                    QCOMPARE(order(BitmapLookupSize(size, PixelRatioHolder(scale))), found);
            }
    }

    void theSizesRunOutOnceAndForAll()
    {
        BitmapLookupSize sizes(16, 1.0);
        for (int count = 0; count < 4; ++count)
            sizes.getNextLoadSize();
        BitmapLookupSize copy(64, 1.0);
        copy = sizes;
        for (BitmapLookupSize* each : {&copy, &sizes}) {
            for (const int size : {48, 40, 28, 24, 20})
                QCOMPARE(each->getNextLoadSize(), size);
            for (int count = 0; count < 3; ++count) {
                QTest::ignoreMessage(QtDebugMsg, exhausted);
                QCOMPARE(each->getNextLoadSize(), -1);
            }
        }
    }

    void aSmallSizeFindsNothing()
    {
        for (const int size : {14, 0, -2}) {
            BitmapLookupSize sizes(size, 4.0);
            for (int count = 0; count < 10; ++count) {
                const QString message = QString("Bitmap lookup size: invalid base size: %1").arg(size);
                QTest::ignoreMessage(QtDebugMsg, qPrintable(message));
                QCOMPARE(sizes.getNextLoadSize(), -1);
            }
        }
        BitmapLookupSize none;
        QCOMPARE(none.getTargetSize(), -1);
        QTest::ignoreMessage(QtDebugMsg, "Bitmap lookup size: invalid base size: -1");
        QCOMPARE(none.getNextLoadSize(), -1);
    }
};

QTEST_APPLESS_MAIN(TestBitmapLookupSize)
#include "tst_bitmaplookupsize.moc"
