#include "velm/images/toolbitmaps.h"

#include "support/table.h"
#include "workbench/wxtestmain.h"

#include <QImage>

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/log.h>

using namespace velm;

namespace {
const QString exhausted = "Bitmap lookup size: no bitmap has been found!";

QString text(const QImage& image)
{
    return image.isNull()
               ? "none"
               : QString("%1x%2 %3").arg(image.width()).arg(image.height()).arg(QColor(image.pixel(0, 0)).name());
}

QString text(const wxBitmap& bitmap)
{
    if (!bitmap.IsOk())
        return "none";
    const wxImage image = bitmap.ConvertToImage();
    return QString("%1x%2 %3")
        .arg(image.GetWidth())
        .arg(image.GetHeight())
        .arg(QColor(image.GetRed(0, 0), image.GetGreen(0, 0), image.GetBlue(0, 0)).name());
}
} // namespace

/// Each icon has its own colour. There are "testpen" for 16 dark, 32 dark and 32 light, "testsun" for 20 light,
/// "testwide" for 16 dark, half as high, "testpen_dark" for 32 dark, and of size -1 "testghost" light.
class TestToolBitmaps : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theNearestIconIsScaled_data()
    {
        const auto row = velmtest::columns<QString, int, bool, int, QString, QString>("name", "size", "tryDefault",
                                                                                      "theme", "expected", "message");
        const QString none;
        row("the very size", "testpen", 16, false, 0, "16x16 #ff0000", none);
        row("the nearest power of two", "testpen", 28, false, 0, "28x28 #00ff00", none);
        row("below the smallest that exists", "testpen", 15, false, 0, "15x15 #ff0000", none);
        row("the light one", "testpen", 32, false, 1, "32x32 #0000ff", none);
        row("a near size goes before the theme", "testpen", 16, false, 1, "16x16 #ff0000", none);
        row("dark has the light one instead", "testsun", 20, false, 0, "20x20 #ffff00", none);
        row("no theme has the light one instead", "testsun", 20, false, -1, "20x20 #ffff00", none);
        row("an unknown theme has dark alone", "testsun", 20, false, 2, "none", exhausted);
        row("a name with its ending", "testpen.png", 16, false, 0, "16x16 #ff0000", none);
        row("another ending belongs to the name", "testpen.PNG", 16, false, 0, "none", exhausted);
        row("an icon as wide as asked stays", "testwide", 16, false, 0, "16x8 #808080", none);
        row("the aspect stays", "testwide", 24, false, 0, "24x12 #808080", none);
        row("an unknown name", "unknown", 24, false, 0, "none", exhausted);
        row("after all sizes comes -1", "testghost", 24, false, 0, "24x24 #123456", exhausted);
    }
    void theNearestIconIsScaled()
    {
        QFETCH(QString, name);
        QFETCH(int, size);
        QFETCH(bool, tryDefault);
        QFETCH(int, theme);
        QFETCH(QString, expected);
        QFETCH(QString, message);
        for (int count = 0; count < 2 && !message.isEmpty(); ++count)
            QTest::ignoreMessage(QtDebugMsg, qPrintable(message));
        const BitmapHolder qt = getQtToolBitmap(name, size, tryDefault, static_cast<ut::EGuiColorTheme>(theme));
        QCOMPARE(text(qt.bitmapQt()), expected);
        QVERIFY(!qt.hasWxBitmap());
        const BitmapHolder wx = getToolBitmap(name, size, tryDefault, static_cast<ut::EGuiColorTheme>(theme));
        QCOMPARE(text(wx.bitmapWx()), expected);
        QVERIFY(!wx.hasQtImage());
    }

    void theDefaultIsThatOfTheSizeMinusOneInItsTheme()
    {
        for (const int theme : {0, 1, 2, -1})
            for (const int size : {24, 14}) { // the latter finds no size at all
                QTest::ignoreMessage(QtDebugMsg,
                                     size == 14 ? "Bitmap lookup size: invalid base size: 14" : qPrintable(exhausted));
                const QImage icon(theme == 1 ? ":/toolicons/-1/light/default.png" : ":/toolicons/-1/dark/default.png");
                QVERIFY(!icon.isNull());
                QCOMPARE(getQtToolBitmap("unknown", size, true, static_cast<ut::EGuiColorTheme>(theme)).bitmapQt(),
                         icon.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
            }
    }

    void anIdNamesSizeAndTheme()
    {
        const auto icon = [](const char* id) { return text(getToolBitmapFromID(id)); };
        QCOMPARE(icon("BMP_32_TESTPEN"), QString("32x32 #0000ff"));
        QCOMPARE(icon("BMP_16_TESTPEN"), QString("16x16 #ff0000"));
        QCOMPARE(icon("BMP_64_TestPen"), QString("64x64 #0000ff"));
        QCOMPARE(icon("BMP_32_TESTPEN_DARK"), QString("32x32 #00ffff")); // the ending belongs to the name, too
        QCOMPARE(icon("XYZ-32-TESTPEN"), QString("32x32 #0000ff"));
        QTest::ignoreMessage(QtDebugMsg, qPrintable(exhausted));
        QCOMPARE(icon("BMP_16_UNKNOWN_DARK"), QString("none")); // and no default
        const wxLogNull quiet;                                  // the XML resources complain
        QCOMPARE(icon("BMP_24_TESTPEN"), QString("none"));
        QCOMPARE(icon("BMP"), QString("none"));
    }
};

int main(int argc, char** argv)
{
    return runWxTest<TestToolBitmaps>(argc, argv);
}
#include "tst_toolbitmaps.moc"
