#include "velm/images/imageconversions.h"

#include "support/table.h"
#include "workbench/wxtestmain.h"

#include <QImage>

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>

using namespace velm;

namespace {
/// One row of pixels in a format, each set raw where it has 32 bits.
QImage row(QImage::Format format, const QList<uint>& pixels, const QList<QRgb>& colours = {})
{
    QImage image(static_cast<int>(pixels.size()), 1, format);
    image.setColorTable(colours);
    for (int x = 0; x < image.width(); ++x)
        if (image.depth() == 32)
            reinterpret_cast<uint*>(image.scanLine(0))[x] = pixels[x];
        else
            image.setPixel(x, 0, pixels[x]);
    return image;
}

QString hex(uint number, int digits)
{
    return QString::number(number, 16).rightJustified(digits, '0');
}

QString text(const QImage& image)
{
    QStringList result;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result += hex(reinterpret_cast<const uint*>(image.constScanLine(y))[x], 8);
    const bool alpha = image.format() == QImage::Format_ARGB32;
    return image.isNull() ? "null" : (alpha ? "alpha " : "") + result.join(' ');
}

QString text(const wxImage& image)
{
    QStringList result;
    for (int y = 0; image.IsOk() && y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x)
            result += (image.HasAlpha() ? hex(image.GetAlpha(x, y), 2) : "") +
                      hex(qRgb(image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y)) & 0xFFFFFF, 6);
    return image.IsOk() ? (image.HasMask() ? "mask " : "") + result.join(' ') : "null";
}
} // namespace

class TestImageConversions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void imagesBecomeTheHosts_data()
    {
        const auto add = velmtest::columns<QImage, QString>("image", "expected");
        const QList<uint> half{0x80326480, 0x00806040, 0xff123456, 0x01010100};
        const QString restored = "8064c7ff 00000000 ff123456 01ffff00";
        add("premultiplied colours are restored", row(QImage::Format_ARGB32_Premultiplied, half), restored);
        add("straight ones are taken for premultiplied", row(QImage::Format_ARGB32, half), restored);
        add("without an alpha channel its byte doesn't count", row(QImage::Format_RGB32, {0x00102030, 0x80405060}),
            "102030 405060");
        add("24 bits", row(QImage::Format_RGB888, {0xff102030, 0xff405060, 0xff708090}), "102030 405060 708090");
        add("a palette with alpha", row(QImage::Format_Indexed8, {1, 0, 2}, {0xff102030, 0x8000ff00, 0x00ffffff}),
            "8000ff00 ff102030 00000000");
        add("one bit, the palette's alpha dropped",
            row(QImage::Format_Mono, {0, 1, 1, 0, 1, 0, 0, 0, 1}, {0xff102030, 0xffc0ffee}),
            "102030 c0ffee c0ffee 102030 c0ffee 102030 102030 102030 c0ffee");
        add("nothing", QImage(), "null");
    }
    void imagesBecomeTheHosts()
    {
        QFETCH(QImage, image);
        QFETCH(QString, expected);
        const QImage before = image.copy();
        QCOMPARE(text(convertImage(image)), expected);
        QCOMPARE(image, before);
    }

    void linesOfAnyWidthKeepTheirPlaces()
    {
        QImage image(3, 2, QImage::Format_RGB888); // its lines are padded
        for (int place = 0; place < 6; ++place)
            image.setPixel(place % 3, place / 3, qRgb(place, 10 * place, 255 - place));
        QCOMPARE(text(convertImage(image)), QString("0000ff 010afe 0214fd 031efc 0428fb 0532fa"));
        QCOMPARE(text(convertImage(convertImage(image))),
                 QString("ff0000ff ff010afe ff0214fd ff031efc ff0428fb ff0532fa"));
    }

    void imagesOfTheHostBecomeQts()
    {
        const auto converted = [](const QList<int>& alpha, bool mask) {
            wxImage image(3, 1);
            image.SetRGB(0, 0, 0x10, 0x20, 0x30);
            image.SetRGB(1, 0, 0xff, 0x00, 0xff);
            image.SetRGB(2, 0, 0x00, 0x00, 0x01);
            if (!alpha.isEmpty())
                image.InitAlpha();
            for (int x = 0; x < alpha.size(); ++x)
                image.SetAlpha(x, 0, static_cast<unsigned char>(alpha[x]));
            if (mask)
                image.SetMaskColour(0xff, 0x00, 0xff);
            return text(convertImage(image));
        };
        QCOMPARE(converted({}, false), QString("ff102030 ffff00ff ff000001"));
        QCOMPARE(converted({0, 128, 255}, false), QString("alpha 00102030 80ff00ff ff000001"));
        QCOMPARE(converted({}, true), QString("alpha ff102030 00ff00ff ff000001"));
        // Above alpha, the mask wraps round, and its own colour keeps what it has.
        QCOMPARE(converted({0, 128, 255}, true), QString("alpha ff102030 80ff00ff fe000001"));
        QCOMPARE(text(convertImage(wxImage())), QString("null"));
    }

    void bitmapsComeBackAsTheyWent()
    {
        const QImage image = row(QImage::Format_ARGB32, {0xff102030, 0x80ff00ff, 0x00000000, 0xfffffffe});
        const BitmapHolder bitmap = convertQImageToWxBitmap(image);
        QVERIFY(bitmap.hasWxBitmap() && !bitmap.hasQtImage());
        const BitmapHolder back = convertWxBitmapToQImage(bitmap.bitmapWx());
        QVERIFY(!back.hasWxBitmap());
        QCOMPARE(text(back.bitmapQt()), text(image));
        const BitmapHolder opaque = convertQImageToWxBitmap(row(QImage::Format_RGB888, {0xff0000ff, 0xff00ff00}));
        QCOMPARE(text(opaque.bitmapWx().ConvertToImage()), QString("0000ff 00ff00"));
        wxIcon icon;
        icon.CopyFromBitmap(bitmap.bitmapWx());
        QCOMPARE(text(convertIcon(icon)), text(image));
        QVERIFY(convertIcon(wxIcon()).isNull());
        QVERIFY(!convertQImageToWxBitmap(QImage()).hasWxBitmap());
        QVERIFY(!convertWxBitmapToQImage(wxBitmap()).hasQtImage());
    }

    void aScaledBitmapKeepsItsAspectOrNot()
    {
        QImage image(8, 4, QImage::Format_ARGB32);
        image.fill(0xff336699);
        const BitmapHolder bitmap = convertQImageToWxBitmap(image);
        const BitmapHolder kept = scaleBitmapUsingQImage(bitmap.bitmapWx(), 4, 4, true);
        QCOMPARE(kept.bitmapWx().GetSize(), wxSize(4, 2));
        QVERIFY(!kept.hasQtImage());
        const BitmapHolder free = scaleBitmapUsingQImage(bitmap.bitmapWx(), 4, 1, false);
        QCOMPARE(text(convertWxBitmapToQImage(free.bitmapWx()).bitmapQt().convertToFormat(QImage::Format_RGB32)),
                 QString("ff336699 ff336699 ff336699 ff336699"));
        QVERIFY(!scaleBitmapUsingQImage(wxBitmap(), 4, 4, true).hasWxBitmap());
    }
};

int main(int argc, char** argv)
{
    return runWxTest<TestImageConversions>(argc, argv);
}
#include "tst_imageconversions.moc"
