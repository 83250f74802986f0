#include "shownpage.h"
#include "support/table.h"

#include <QImage>

using velmtest::PageEngine;
using velmtest::Shown;

namespace {
constexpr QRgb nothing = 0xffffffff;

/// Every pixel tells its place.
QRgb pixelAt(int x, int y)
{
    return qRgb(2 * x, 4 * y, 40);
}

QImage picture()
{
    QImage image(100, 50, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, pixelAt(x, y));
    return image;
}
} // namespace

/// Images as they reach the screen, whose pixels are a fifth smaller than the page's.
class TestControlsImages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyModeKeepsPixelsSharp_data()
    {
        const auto row =
            velmtest::columns<QByteArray, QRect, QRect, QRect>("properties", "source", "destination", "whole");
        const QRect all(0, 0, 100, 50);
        const QRect middle(25, 0, 50, 50);
        const QRect place(0, 0, 100, 100);
        row("stretched", "mode: ResizedImage.Stretch", all, place, place);
        row("fitted", "mode: ResizedImage.Fit", all, QRect(0, 25, 100, 50), QRect(0, 25, 100, 50));
        row("filled", "mode: ResizedImage.Fill", middle, place, QRect(-50, 0, 200, 100));
        row("zoomed in", "mode: ResizedImage.Zoom; zoom: 0.5", middle, place, QRect(-50, 0, 200, 100));
        row("a zoom that is none", "mode: ResizedImage.Zoom; zoom: 0", all, QRect(0, 25, 100, 50),
            QRect(0, 25, 100, 50));
    }
    void everyModeKeepsPixelsSharp()
    {
        QFETCH(QByteArray, properties);
        QFETCH(QRect, source);
        QFETCH(QRect, destination);
        QFETCH(QRect, whole);
        PageEngine engine;
        Shown shown(engine.load(page("smooth: false; " + properties), of(picture())));
        const QImage pixels = shownPixels(shown);
        const QQuickItem* preview = shown.find("preview");
        QCOMPARE(preview->property("sourceRect").toRect(), source);
        QCOMPARE(preview->property("destinationRect").toRect(), destination);
        QCOMPARE(preview->property("wholeRect").toRect(), whole);
        QCOMPARE(preview->implicitWidth(), 80.0);
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x) {
                const QPoint within = QPoint(x, y) - destination.topLeft();
                const QRgb expected = !destination.contains(x, y)
                                          ? nothing
                                          : pixelAt(source.x() + within.x() * source.width() / destination.width(),
                                                    source.y() + within.y() * source.height() / destination.height());
                if (pixels.pixel(x, y) != expected)
                    QFAIL(qPrintable(QStringLiteral("the pixel at %1, %2 is %3 in place of %4")
                                         .arg(x)
                                         .arg(y)
                                         .arg(pixels.pixel(x, y), 0, 16)
                                         .arg(expected, 0, 16)));
            }
    }

    void whatIsClearShowsTheChequer()
    {
        QImage image(100, 50, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        PageEngine engine;
        Shown shown(engine.load(page("chequer: 8; chequerColor: '#102030'; chequerBackground: '#a0b0c0'"), of(image)));
        const QImage pixels = shownPixels(shown);
        for (const auto& [place, colour] :
             {std::pair{QPoint(0, 24), nothing}, std::pair{QPoint(0, 25), qRgb(16, 32, 48)},
              std::pair{QPoint(9, 34), qRgb(16, 32, 48)}, std::pair{QPoint(10, 34), qRgb(160, 176, 192)},
              std::pair{QPoint(10, 35), qRgb(16, 32, 48)}, std::pair{QPoint(99, 75), nothing}})
            QCOMPARE(pixels.pixel(place), colour);
        // A picture without holes has none.
        shown.page()->setProperty("picture", picture());
        QCOMPARE(shownPixels(shown).pixel(50, 50), pixelAt(50, 25));
    }

    void anImageOrAPlaceOfNoSizeShowsNothing()
    {
        PageEngine engine;
        Shown shown(engine.load(page("mode: ResizedImage.Fill"), of(QImage())));
        QImage empty(100, 100, QImage::Format_RGB32);
        empty.fill(nothing);
        QCOMPARE(shownPixels(shown), empty);
        QVERIFY(shown.find("preview")->property("sourceRect").toRect().isNull());
        shown.page()->setProperty("picture", picture());
        QVERIFY(shownPixels(shown) != empty);
        for (const QSizeF size : {QSizeF(0, 80), QSizeF(80, 0)}) {
            shown.find("preview")->setSize(size);
            QCOMPARE(shownPixels(shown), empty);
        }
        // So long that the fitted image is less than a pixel high: it is seen all the same.
        shown.find("preview")->setSize(QSizeF(80, 80));
        shown.find("preview")->setProperty("mode", 1);
        QImage line(1000, 1, QImage::Format_RGB32);
        line.fill(Qt::red);
        shown.page()->setProperty("picture", line);
        const QImage pixels = shownPixels(shown);
        QCOMPARE(pixels.pixelColor(50, 49), QColor(Qt::red));
        QCOMPARE(pixels.pixel(50, 48), nothing);
    }

private:
    /// 100 by 100 pixels of the screen, whose corner isn't on a whole one.
    static QByteArray page(const QByteArray& properties)
    {
        return "Rectangle { implicitWidth: 300; implicitHeight: 300; property alias picture: preview.image\n"
               "ResizedImage { id: preview; objectName: 'preview'; x: 3.3; y: 5.1; width: 80; height: 80\n" +
               properties + "} }";
    }
    static QImage shownPixels(Shown& shown)
    {
        return shown.window()->grabWindow().convertToFormat(QImage::Format_RGB32).copy(4, 6, 100, 100);
    }
    static QVariantMap of(const QImage& image) { return {{"picture", QVariant::fromValue(image)}}; }
};

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "1.25");
    return velmtest::runPageTest<TestControlsImages>(argc, argv);
}

#include "tst_controlsimages.moc"
