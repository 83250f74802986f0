#include "velm/images/imageresizing.h"

#include "support/table.h"

#include <QTest>

#include <limits>

using namespace velm;

namespace {
QString text(const QRect& rect)
{
    return QString("%1,%2 %3,%4").arg(rect.left()).arg(rect.top()).arg(rect.right()).arg(rect.bottom());
}

QString text(const ResizeRectangles& rectangles)
{
    return rectangles.isNull() && rectangles.source == QRect() && rectangles.destination == QRect()
               ? "null"
               : text(rectangles.source) + " | " + text(rectangles.destination);
}

struct FakeImage : IResizeableImage
{
    QSize getSize() const override { return size; }
    double getZoom(double imageAspect, double destinationAspect) const override
    {
        log += QString("zoom %1 %2").arg(imageAspect).arg(destinationAspect);
        return zoom;
    }
    void draw(void* context, const ResizeRectangles& rectangles) override
    {
        log += QString("draw %1 %2").arg(reinterpret_cast<std::uintptr_t>(context)).arg(text(rectangles));
    }

    QSize size{100, 50};
    double zoom = 1.0;
    mutable QStringList log;
};
} // namespace

class TestImageResizing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anImageIsPlaced_data()
    {
        const auto row =
            velmtest::columns<int, QSize, QRect, double, QString>("mode", "size", "destination", "zoom", "expected");
        const QRect square(10, 20, 100, 100);
        const QSize wide(100, 50);
        const QString whole = "0,0 99,49 | 10,20 109,119";
        constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
        row("stretched", 0, wide, square, 0.0, whole);
        row("an unknown mode stretches", 4, wide, square, 0.0, whole);
        row("a wide one fitted", 1, wide, square, 0.0, "0,0 99,49 | 10,45 109,94");
        row("a tall one fitted", 1, QSize(50, 100), square, 0.0, "0,0 49,99 | 35,20 84,119");
        row("what is cut off doesn't depend on the place", 1, QSize(3, 2), QRect(-5, -7, 10, 9), 0.0,
            "0,0 2,1 | -5,-6 4,-1");
        row("a wide one filling", 2, wide, square, 0.0, "25,0 74,49 | 10,20 109,119");
        row("a tall one filling", 2, QSize(50, 100), square, 0.0, "0,25 49,74 | 10,20 109,119");
        row("filling an odd height", 2, QSize(3, 2), QRect(0, 0, 10, 9), 0.0, "0,0 1,1 | 0,0 9,8");
        row("zoomed by 1", 3, wide, square, 1.0, "0,0 99,49 | 10,45 109,94");
        row("zoomed in", 3, wide, square, 0.5, "25,0 74,49 | 10,20 109,119");
        row("zoomed out", 3, wide, square, 2.0, "0,0 99,49 | 35,57 84,81");
        row("cropped in one direction alone", 3, QSize(200, 10), square, 1.0, "50,0 149,9 | 10,65 109,74");
        row("a zoom of 0 leaves no source", 3, wide, square, 0.0, "50,25 49,24 | 10,20 109,119");
        row("a huge zoom leaves no destination", 3, wide, square, 1e300, "0,0 99,49 | 60,70 59,69");
        row("a negative zoom", 3, wide, square, -1.0, "100,75 -1,-26 | 110,95 9,44");
        row("a zoom that is no number", 3, wide, square, noNumber, whole);
        for (int mode = 0; mode < 4; ++mode) {
            QTest::addRow("no width in mode %d", mode) << mode << wide << QRect(10, 20, 0, 100) << 1.0 << "null";
            QTest::addRow("a negative height in mode %d", mode)
                << mode << wide << QRect(10, 20, 9, -9) << 1.0 << "null";
            QTest::addRow("an empty image in mode %d", mode) << mode << QSize(100, 0) << square << 1.0 << "null";
        }
    }
    void anImageIsPlaced()
    {
        QFETCH(int, mode);
        QFETCH(QSize, size);
        QFETCH(QRect, destination);
        QFETCH(double, zoom);
        QFETCH(QString, expected);
        FakeImage image;
        image.size = size;
        image.zoom = zoom;
        const ResizeRectangles placed =
            computeResizedImageRectangles(&image, destination, static_cast<EImageResizeMode>(mode));
        QCOMPARE(text(placed), expected);
        // The image is asked before it is known whether anything is to be drawn.
        const QString question = QString("zoom %1 %2")
                                     .arg(double(size.width()) / size.height())
                                     .arg(double(destination.width()) / destination.height());
        QCOMPARE(image.log, QStringList({question}));
        drawResizedImage(&image, reinterpret_cast<void*>(7), destination, static_cast<EImageResizeMode>(mode));
        QStringList drawn{question, question};
        if (!placed.isNull())
            drawn += "draw 7 " + expected;
        QCOMPARE(image.log, drawn);
    }

    void noImageGivesNoRectangles()
    {
        QVERIFY(computeResizedImageRectangles(nullptr, QRect(0, 0, 9, 9), EImageResizeMode::Fit).isNull());
        drawResizedImage(nullptr, nullptr, QRect(0, 0, 9, 9), EImageResizeMode::Fit);
        QVERIFY(ResizeRectangles().isNull());
        QVERIFY((ResizeRectangles{QRect(0, 0, 1, 1), QRect(3, 3, 0, 0)}).isNull());
        QVERIFY(!(ResizeRectangles{QRect(0, 0, 0, 1), QRect(3, 3, 1, 0)}).isNull());
    }

    void aPartIsPlacedByTheWhole()
    {
        const auto whole = [](const QRect& source, const QRect& destination) {
            return text(transformToDestinationOnlyRectangle(source, destination));
        };
        const QRect place(7, 8, 60, 80);
        QCOMPARE(whole(QRect(-4, 0, 5, 5), place), text(place));
        QCOMPARE(whole(QRect(10, 20, 30, 40), place), QString("-20,-40 79,119"));
        QCOMPARE(whole(QRect(1, 0, 10, 10), QRect(5, 5, 100, 15)), QString("-1,0 16,14")); // by the heights, cut off
        QCOMPARE(whole(QRect(0, 1, 4, 4), QRect(0, 0, 8, 8)), QString("0,-2 7,9"));
    }
};

QTEST_APPLESS_MAIN(TestImageResizing)
#include "tst_imageresizing.moc"
