#include "velm/screens/logicalrect.h"
#include "velm/screens/wxrealrect.h"

#include <QTest>

#include <limits>

using namespace velm;

namespace {
IMonitorInfo::MonitorGeometry scaled(double scale)
{
    // Where the monitor stands plays no part.
    return {QPointF(-1920.0, 77.0), scale, QRectF(-1920.0, 77.0, 100.0, 100.0)};
}

QString text(const LogicalRect& rect)
{
    return QString("%1,%2 %3,%4").arg(rect.left()).arg(rect.top()).arg(rect.right()).arg(rect.bottom());
}

QString text(const wxRealRect& rect)
{
    return QString("%1,%2 %3x%4").arg(rect.x).arg(rect.y).arg(rect.width).arg(rect.height);
}

QString text(const OdGsDCRect& rect)
{
    return QString("%1,%2 %3,%4").arg(rect.m_min.x).arg(rect.m_min.y).arg(rect.m_max.x).arg(rect.m_max.y);
}
} // namespace

class TestLogicalGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pointsAreScaled()
    {
        const auto there = [](double scale, long x, long y) {
            const LogicalPoint fromOd(OdGsDCPoint{x, y}, scaled(scale));
            const LogicalPoint fromWx(wxRealPoint(x, y), scaled(scale));
            const wxRealPoint back = fromWx.toWx(scaled(scale));
            return fromOd == fromWx && fromOd.toOd(scaled(scale)) == OdGsDCPoint{x, y} && back == wxRealPoint(x, y)
                       ? fromOd.toQt()
                       : QPointF(99.0, 99.0);
        };
        QCOMPARE(there(1.0, -7, 9), QPointF(-7.0, 9.0));
        QCOMPARE(there(1.5, -9, 6), QPointF(-6.0, 4.0));
        QCOMPARE(there(1.25, -1921, 3), QPointF(-1536.8, 2.4));
        QCOMPARE(there(0.5, 3, -3), QPointF(6.0, -6.0));
    }

    void pointsAreTruncatedAndCompareLoosely()
    {
        QCOMPARE(LogicalPoint(1.9, -1.9).toOd(scaled(1.0)), (OdGsDCPoint{1, -1}));
        QCOMPARE(LogicalPoint(0.7, -0.7).toOd(scaled(1.5)), (OdGsDCPoint{1, -1}));
        QCOMPARE(LogicalPoint(QPoint(3, -4)).toQt(), QPointF(3.0, -4.0));
        const LogicalPoint point(1.0, 2.0);
        QVERIFY(point == LogicalPoint(1.0 + 1e-10, 2.0 - 1e-10));
        QVERIFY(!(point == LogicalPoint(1.0 + 2e-9, 2.0)) && !(point == LogicalPoint(1.0, 2.0 - 2e-9)));
        LogicalPoint moved(0.0, 0.0);
        moved.setX(1.5);
        moved.setY(-2.5);
        QCOMPARE(moved.toQt(), QPointF(1.5, -2.5));
        constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
        QCOMPARE(LogicalPoint(noNumber, 0.0).toOd(scaled(1.0)).x, 0L);
    }

    void rectanglesAreScaledBySides()
    {
        const auto thereAndBack = [](double scale) {
            const auto geometry = scaled(scale);
            const LogicalRect fromOd(OdGsDCRect{{-10, 4}, {20, 34}}, geometry);
            const LogicalRect fromWx(wxRealRect(-10.0, 4.0, 30.0, 30.0), geometry);
            return QStringList{text(fromOd), text(fromOd.toOd(geometry)), text(fromWx), text(fromWx.toWx(geometry)),
                               text(fromWx.toOd(geometry))}
                .join(" | ");
        };
        QCOMPARE(thereAndBack(1.0), QString("-10,4 20,34 | -10,4 20,34 | -10,4 19,33 | -10,4 29x29 | -10,4 19,33"));
        QCOMPARE(thereAndBack(2.0), QString("-5,2 10,17 | -10,4 20,34 | -5,2 9.5,16.5 | -10,4 29x29 | -10,4 19,33"));
        QCOMPARE(thereAndBack(1.25),
                 QString("-8,3.2 16,27.2 | -10,4 20,34 | -8,3.2 15.2,26.4 | -10,4 29x29 | -10,4 19,33"));
    }

    void sidesAreInclusive()
    {
        const LogicalRect fromNumbers(0.0, 1.0, 10.0, 20.0);
        QCOMPARE(text(fromNumbers), QString("0,1 10,21"));
        QCOMPARE(fromNumbers.width(), 11.0);
        QCOMPARE(fromNumbers.height(), 21.0);
        const LogicalRect fromQt(QRect(0, 1, 10, 20));
        QCOMPARE(text(fromQt), QString("0,1 9,20"));
        QCOMPARE(fromQt.width(), 10.0);
        QCOMPARE(fromQt.height(), 20.0);
        QCOMPARE(fromQt.toQt(), QRectF(0.0, 1.0, 9.0, 19.0));
        QCOMPARE(text(LogicalRect(0.0, 0.0, 0.9, -0.9).toOd(scaled(1.5))), QString("0,0 1,-1"));
        QCOMPARE(LogicalRect(wxRealRect(0.0, 0.0, 10.0, 10.0), scaled(1.0)).width(), 10.0);

        LogicalRect rect(LogicalPoint(1.5, 2.5), LogicalPoint(11.5, 22.5));
        rect.setWidth(5.0);
        rect.setHeight(6.0);
        QCOMPARE(text(rect), QString("1.5,2.5 5.5,7.5"));
        rect.setLeft(-3);
        rect.setTop(-4);
        QCOMPARE(text(rect), QString("-3,-4 5.5,7.5"));
        rect.setRight(20);
        rect.setBottom(30);
        rect.setX(0.25);
        rect.setY(0.75);
        QCOMPARE(text(rect), QString("0.25,0.75 20,30"));
        rect.setTopLeft(LogicalPoint(2.0, 3.0));
        rect.setBottomRight(LogicalPoint(1.0, 1.0));
        QCOMPARE(text(rect), QString("2,3 1,1"));
        QCOMPARE(rect.width(), 0.0);
        QVERIFY(rect.topLeft() == LogicalPoint(2.0, 3.0) && rect.bottomRight() == LogicalPoint(1.0, 1.0));
    }

    void realRectanglesOfTheHostHaveTheirEndsOutside()
    {
        QCOMPARE(text(wxRealRect()), QString("0,0 0x0"));
        wxRealRect rect(wxRealPoint(1.5, -2.5), wxRealPoint(4.0, 6.0));
        QCOMPARE(text(rect), QString("1.5,-2.5 2.5x8.5"));
        QCOMPARE(rect.GetRight(), 4.0);
        QCOMPARE(rect.GetBottom(), 6.0);
        QCOMPARE(rect.GetSize(), wxSize(2, 8));
        QCOMPARE(wxRect(rect), wxRect(2, -3, 3, 9)); // halves away from 0
        rect.SetLeft(10.0);
        rect.SetTop(20.0);
        QCOMPARE(text(rect), QString("10,20 2.5x8.5"));
        rect.SetRight(11.0);
        rect.SetBottom(19.5);
        QCOMPARE(text(rect), QString("10,20 1x-0.5"));
        QCOMPARE(rect.GetSize(), wxSize(1, 0));
        QVERIFY(rect.IsEmpty() && wxRealRect(0, 0, 0, 1).IsEmpty() && !wxRealRect(0, 0, 1e-9, 1e-9).IsEmpty());
        QCOMPARE(text(wxRealRect(wxRect(1, 2, 3, 4))), QString("1,2 3x4"));
        QVERIFY(rect.GetPosition() == wxRealPoint(10, 20) && rect.GetLeftTop() == rect.GetPosition());
        QCOMPARE(rect.GetLeft() + rect.GetTop(), 30.0);
    }
};

QTEST_APPLESS_MAIN(TestLogicalGeometry)
#include "tst_logicalgeometry.moc"
