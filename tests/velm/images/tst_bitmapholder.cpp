#include "velm/images/bitmapholder.h"

#include "workbench/wxtestmain.h"

#include <QImage>

#include <wx/bitmap.h>

using namespace velm;

namespace {
/// Which sides are filled, and the width of the host's.
QString state(const BitmapHolder& holder)
{
    return QString("%1%2%3")
        .arg(holder.hasWxBitmap() ? "wx " : "", holder.hasQtImage() ? "qt " : "")
        .arg(holder.getSize());
}
} // namespace

class TestBitmapHolder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachSideIsFilledOnItsOwn()
    {
        QCOMPARE(state(BitmapHolder()), QString("0"));
        const BitmapHolder square(24);
        QCOMPARE(state(square), QString("wx 24"));
        QCOMPARE(square.bitmapWx().GetHeight(), 24);
        QCOMPARE(square.bitmapWx().GetDepth(), wxBitmap(1, 1).GetDepth());
        QCOMPARE(state(BitmapHolder(0)), QString("0"));
        QCOMPARE(state(BitmapHolder(-3)), QString("0"));
        QCOMPARE(state(BitmapHolder(QImage(5, 5, QImage::Format_RGB32))), QString("qt 0"));
        BitmapHolder both(wxBitmap(7, 3));
        both.bitmapQt() = QImage(5, 5, QImage::Format_RGB32);
        QCOMPARE(state(both), QString("wx qt 7"));
        BitmapHolder moved(std::move(both));
        QCOMPARE(state(moved), QString("wx qt 7"));
        static_assert(!std::is_copy_constructible_v<BitmapHolder> && !std::is_copy_assignable_v<BitmapHolder>);
        // A filled Qt side stays, and so does the host's beside it.
        QVERIFY(moved.convertToQt());
        QCOMPARE(state(moved), QString("wx qt 7"));
        QCOMPARE(moved.bitmapQt().width(), 5);
    }

    void aConvertedBitmapIsLetGo()
    {
        wxImage image(3, 2);
        image.SetRGB(2, 1, 0x10, 0x20, 0x30);
        BitmapHolder holder{wxBitmap(image)};
        QVERIFY(holder.convertToQt());
        QCOMPARE(state(holder), QString("qt 0"));
        QCOMPARE(holder.bitmapQt().size(), QSize(3, 2));
        QCOMPARE(holder.bitmapQt().pixel(2, 1), 0xff102030);
        const qint64 key = holder.bitmapQt().cacheKey();
        QVERIFY(holder.convertToQt());
        QCOMPARE(state(holder), QString("qt 0"));
        QCOMPARE(holder.bitmapQt().cacheKey(), key);
        QVERIFY(!BitmapHolder().convertToQt());
    }
};

int main(int argc, char** argv)
{
    return runWxTest<TestBitmapHolder>(argc, argv);
}
#include "tst_bitmapholder.moc"
