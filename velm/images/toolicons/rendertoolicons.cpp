#include "hintedsvg.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace {
/// What stands in a theme for the two colours of the drawings, "black" and "dodgerblue".
struct Theme
{
    const char* folder;
    const char* line;
    const char* accent;
};
constexpr Theme themes[] = {{"dark", "#d0d4d9", "#62aaf5"}, {"light", "#363b41", "#2273cf"}};

QByteArray contents(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("can't be read");
    return file.readAll();
}

void render(QByteArray svg, const Theme& theme, int size, const QString& target)
{
    svg.replace("\"black\"", QByteArray("\"") + theme.line + '"');
    svg.replace("\"dodgerblue\"", QByteArray("\"") + theme.accent + '"');
    QSvgRenderer renderer(hintedSvg(svg, size));
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    if (!renderer.isValid() || !QDir().mkpath(QFileInfo(target).path()) || !image.save(target))
        throw std::runtime_error("can't be rendered as " + target.toStdString());
}
} // namespace

/// rendertoolicons FOLDER SIZES FILE.svg...: writes FOLDER/size/theme/file.png for each of the sizes, as in "16,20",
/// each theme and each file. "default" is written in the size "-1" too, which is where one looks who has found nothing.
int main(int argc, char** argv)
{
    if (argc < 4)
        return EXIT_FAILURE;
    const QString folder = QFile::decodeName(argv[1]);
    for (int argument = 3; argument < argc; ++argument) {
        try {
            const QString file = QFile::decodeName(argv[argument]);
            const QByteArray svg = contents(file);
            const QString name = QFileInfo(file).completeBaseName();
            for (const Theme& theme : themes) {
                const QString target = folder + QStringLiteral("/%1/") + QLatin1String(theme.folder) + u'/' + name +
                                       QStringLiteral(".png");
                for (const QByteArray& size : QByteArray(argv[2]).split(','))
                    render(svg, theme, size.toInt(), target.arg(size.toInt()));
                if (name == QLatin1String("default"))
                    render(svg, theme, 32, target.arg(-1));
            }
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s: %s\n", argv[argument], error.what());
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
