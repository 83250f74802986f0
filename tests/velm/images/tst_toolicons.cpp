#include <QDir>
#include <QImage>
#include <QtTest>

namespace {
constexpr int sizes[] = {16, 20, 24, 28, 32, 40, 48, 56, 64};

QImage icon(int size, const char* theme, const QString& name)
{
    return QImage(QStringLiteral(":/toolicons/%1/%2/%3.png").arg(size).arg(QLatin1String(theme), name));
}

/// The mean brightness of what is drawn, and how much of the picture that is.
std::pair<double, double> inked(const QImage& image)
{
    double alphas = 0.0;
    double lightness = 0.0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            alphas += colour.alphaF();
            lightness += colour.alphaF() * colour.lightnessF();
        }
    return {lightness / alphas, alphas / (image.width() * image.height())};
}
} // namespace

/// The pictures that the build made of the drawings.
class ToolIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDrawingIsThereInAllSizesAndThemes_data();
    void aDrawingIsThereInAllSizesAndThemes();
    void linesFillWholePixels_data();
    void linesFillWholePixels();
    void theDefaultStandsWhereALookUpEnds();
};

void ToolIconsTest::aDrawingIsThereInAllSizesAndThemes_data()
{
    QTest::addColumn<QString>("name");
    const QStringList drawings = QDir(QStringLiteral(VELM_DRAWINGS)).entryList({QStringLiteral("*.svg")});
    QVERIFY(drawings.size() >= 20);
    for (const QString& drawing : drawings)
        QTest::newRow(qPrintable(drawing)) << drawing.chopped(4);
}

void ToolIconsTest::aDrawingIsThereInAllSizesAndThemes()
{
    QFETCH(const QString, name);
    for (const int size : sizes) {
        const QImage dark = icon(size, "dark", name);
        const QImage light = icon(size, "light", name);
        QCOMPARE(dark.size(), QSize(size, size));
        QCOMPARE(light.size(), QSize(size, size));
        const auto [darkLightness, darkPart] = inked(dark);
        const auto [lightLightness, lightPart] = inked(light);
        QVERIFY2(darkPart > 0.08 && darkPart < 0.6, qPrintable(QStringLiteral("%1: %2").arg(size).arg(darkPart)));
        // The same shape, light on dark and dark on light.
        QVERIFY(qAbs(darkPart - lightPart) < 0.001);
        QVERIFY2(darkLightness > lightLightness + 0.2, qPrintable(QString::number(size)));
    }
}

void ToolIconsTest::linesFillWholePixels_data()
{
    QTest::addColumn<int>("size");
    for (const int size : sizes)
        QTest::addRow("at %d pixels", size) << size;
}

void ToolIconsTest::linesFillWholePixels()
{
    QFETCH(const int, size);
    const QImage grid = icon(size, "dark", QStringLiteral("grid"));
    // Above the upper one of the two level lines: nothing but the two upright ones.
    const int y = size / 4;
    int filled = 0;
    for (int x = 0; x < size; ++x) {
        const int alpha = qAlpha(grid.pixel(x, y));
        QVERIFY2(alpha < 8 || alpha > 247, qPrintable(QStringLiteral("alpha %1 at %2").arg(alpha).arg(x)));
        filled += alpha > 247 ? 1 : 0;
    }
    QCOMPARE(filled % 2, 0);
    QVERIFY(filled >= size / 9 && filled <= size / 5);
}

void ToolIconsTest::theDefaultStandsWhereALookUpEnds()
{
    for (const char* theme : {"dark", "light"})
        QCOMPARE(icon(-1, theme, QStringLiteral("default")), icon(32, theme, QStringLiteral("default")));
}

QTEST_GUILESS_MAIN(ToolIconsTest)
#include "tst_toolicons.moc"
