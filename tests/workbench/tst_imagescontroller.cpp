#include "house.h"
#include "panels/imagescontroller.h"
#include "wxtestmain.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace workbench;

namespace {
enum Source
{
    Drawing,
    TestCard,
};

int opaquePixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
    return count;
}
} // namespace

/// The pictures that the page of images shows.
class ImagesControllerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theDrawingIsShownOnAClearGround()
    {
        House house;
        ImagesController controller(house.documents);
        QSignalSpy made(&controller, &ImagesController::pictureChanged);
        QVERIFY(controller.isOutdated() && controller.picture().isNull());
        controller.update();
        controller.update();
        QCOMPARE(made.size(), 1);
        const QImage picture = controller.picture();
        QCOMPARE(picture.size(), QSize(800, 600));
        QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
        // The wall begins in the middle of the circle and ends at the right margin.
        const int right = 800 - 4 * 800 / 100;
        const auto isDrawn = [&](int x) {
            for (int y = 0; y < 600; ++y)
                if (qAlpha(controller.picture().pixel(x, y)) > 0)
                    return true;
            return false;
        };
        QVERIFY(isDrawn(right - 4) && !isDrawn(right + 4));
        QCOMPARE(controller.roundTripText(), QStringLiteral("no pixel changed"));

        house.walls->setIsOff(true);
        controller.refresh();
        QVERIFY(controller.isOutdated());
        controller.update();
        QVERIFY(opaquePixels(controller.picture()) > 0);
        QVERIFY(controller.picture() != picture);
        house.openAnother();
        controller.update();
        QCOMPARE(opaquePixels(controller.picture()), 0);
        house.close();
        controller.update();
        QVERIFY(controller.picture().isNull() && controller.sizeText().isEmpty());
    }

    void everyPictureGoesToTheHostAndBackUnchanged()
    {
        House house;
        ImagesController controller(house.documents);
        for (int source = 0; source < controller.sources().size(); ++source) {
            controller.setSource(source);
            controller.update();
            QVERIFY(opaquePixels(controller.picture()) > 0);
            QCOMPARE(controller.roundTripText(), QStringLiteral("no pixel changed"));
        }
        for (const int none : {-1, int(controller.sources().size())}) {
            controller.setSource(none);
            QCOMPARE(controller.source(), int(controller.sources().size()) - 1);
        }
        for (const bool isDark : {true, false})
            for (const QString& icon : controller.icons())
                QVERIFY(controller.strip(icon, isDark) != controller.strip("no icon has this name", isDark));
    }

    void aBadFileLeavesTheFormerPicture()
    {
        const QTemporaryDir folder;
        const auto write = [&](const char* name, const QByteArray& bytes) {
            QFile file(folder.filePath(name));
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        };
        QImage image(30, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        // What it holds counts, not what it is called.
        QVERIFY(image.save(folder.filePath("red.txt"), "PNG"));
        QFile good(folder.filePath("red.txt"));
        QVERIFY(good.open(QIODevice::ReadOnly));
        QVERIFY(write("text.png", "this is no picture"));
        QVERIFY(write("empty.jpg", ""));
        QVERIFY(write("cut.png", good.readAll().left(40)));

        House house;
        ImagesController controller(house.documents);
        const auto choices = controller.sources().size();
        QVERIFY(controller.load(good.fileName()));
        QCOMPARE(controller.sources().size(), choices + 1);
        QCOMPARE(controller.sources().value(controller.source()), QStringLiteral("red.txt"));
        controller.update();
        QCOMPARE(controller.picture(), image);
        for (const char* bad : {"text.png", "empty.jpg", "cut.png", "missing.png", ""}) {
            QVERIFY(!controller.load(folder.filePath(bad)));
            QVERIFY2(controller.problem().startsWith(bad), qPrintable(controller.problem()));
            QVERIFY(!controller.isOutdated());
            QCOMPARE(controller.picture(), image);
        }
        controller.setSource(TestCard);
        QVERIFY(controller.problem().isEmpty());
        controller.update();
        QCOMPARE(controller.picture().pixelColor(159, 99), QColor(Qt::yellow));
        QCOMPARE(controller.sizeText(), QStringLiteral("160 x 100 pixels"));
    }
};

int main(int argc, char** argv)
{
    return runWxTest<ImagesControllerTest>(argc, argv);
}

#include "tst_imagescontroller.moc"
