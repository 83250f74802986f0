#include "panels/imagescontroller.h"

#include "drawing/drawingpreview.h"
#include "host/themecolours.h"
#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"
#include "velm/images/bitmaplookupsize.h"
#include "velm/images/imageconversions.h"
#include "velm/images/toolbitmaps.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QPainter>
#include <QPointer>

#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/filedlg.h>
#include <wx/image.h>

#include <functional>
#include <numeric>

namespace workbench {
namespace {
enum Source
{
    DrawingSource,
    TestCardSource,
    FirstIconSource,
};

QStringList iconNames()
{
    QStringList names;
    for (const int size : velm::BitmapLookupSize::s_lookup)
        for (const char* folder : {"dark", "light"})
            for (const QFileInfo& file :
                 QDir(QStringLiteral(":/toolicons/%1/%2").arg(size).arg(folder)).entryInfoList(QDir::Files))
                names += file.completeBaseName();
    names.sort();
    names.removeDuplicates();
    return names;
}

/// A corner of each colour, so that a cut edge is missed, lines a pixel apart, and a ground that fades from clear.
QImage testCard()
{
    constexpr int corner = 20;
    QImage card(160, 100, QImage::Format_ARGB32_Premultiplied);
    card.fill(Qt::transparent);
    QPainter painter(&card);
    QLinearGradient ground(0, 0, card.width(), 0);
    ground.setColorAt(0, QColor(90, 130, 200, 0));
    ground.setColorAt(1, QColor(90, 130, 200));
    painter.fillRect(card.rect(), ground);
    for (int x = 60; x < 100; x += 2)
        painter.fillRect(x, 0, 1, corner, x < 80 ? Qt::black : Qt::white);
    const int right = card.width() - corner;
    const int bottom = card.height() - corner;
    painter.fillRect(0, 0, corner, corner, Qt::red);
    painter.fillRect(right, 0, corner, corner, Qt::green);
    painter.fillRect(0, bottom, corner, corner, Qt::blue);
    painter.fillRect(right, bottom, corner, corner, Qt::yellow);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::darkRed, 3));
    painter.drawEllipse(QPointF(80, 56), 36, 36);
    return card;
}

/// How many pixels a wxBitmap changes. What lies behind a clear pixel isn't seen and doesn't count.
int pixelsChangedByBitmap(const QImage& image)
{
    const auto comparable = [](const QImage& any) { return any.convertToFormat(QImage::Format_ARGB32_Premultiplied); };
    const velm::BitmapHolder bitmap = velm::convertQImageToWxBitmap(image);
    const QImage before = comparable(image);
    const QImage after = comparable(velm::convertWxBitmapToQImage(bitmap.bitmapWx()).bitmapQt());
    if (before.size() != after.size())
        return before.width() * before.height();
    int changed = 0;
    for (int y = 0; y < before.height(); ++y) {
        const auto* one = reinterpret_cast<const QRgb*>(before.constScanLine(y));
        const auto* other = reinterpret_cast<const QRgb*>(after.constScanLine(y));
        changed += std::inner_product(one, one + before.width(), other, 0, std::plus<>(), std::not_equal_to<>());
    }
    return changed;
}
} // namespace

ImagesController::ImagesController(OdApDocManager& documents) : m_documents(documents), m_icons(iconNames())
{
    m_documents.addReactor(this);
}

ImagesController::~ImagesController()
{
    m_documents.removeReactor(this);
}

QStringList ImagesController::sources() const
{
    QStringList names = {tr("The drawing"), tr("Test card")};
    for (const QString& icon : m_icons)
        names += tr("Icon %1").arg(icon);
    if (!m_file.isNull())
        names += m_fileName;
    return names;
}

void ImagesController::setSource(int source)
{
    if (source == m_source || source < 0 || source >= sources().size())
        return;
    m_source = source;
    Q_EMIT sourceChanged();
    setProblem(QString());
    refresh();
}

QString ImagesController::sizeText() const
{
    return m_picture.isNull() ? QString() : tr("%1 x %2 pixels").arg(m_picture.width()).arg(m_picture.height());
}

QString ImagesController::roundTripText() const
{
    if (m_picture.isNull())
        return QString();
    return m_changedPixels == 0 ? tr("no pixel changed")
                                : tr("%1 pixels changed").arg(QLocale().toString(m_changedPixels));
}

bool ImagesController::load(const QString& file)
{
    QImageReader reader(file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QString name = QFileInfo(file).fileName();
    const QImage image = reader.read();
    if (image.isNull()) {
        setProblem(tr("%1 can't be shown: %2.").arg(name, reader.errorString()));
        return false;
    }
    setProblem(QString());
    m_file = image;
    m_fileName = name;
    m_source = FirstIconSource + static_cast<int>(m_icons.size());
    Q_EMIT sourcesChanged();
    Q_EMIT sourceChanged();
    refresh();
    return true;
}

void ImagesController::setDarkBackground(bool isDark)
{
    m_theme = isDark ? ut::EGuiColorTheme::Dark : ut::EGuiColorTheme::Light;
    refresh();
}

void ImagesController::refresh()
{
    m_isOutdated = true;
    Q_EMIT outdatedChanged();
}

void ImagesController::update()
{
    if (!m_isOutdated)
        return;
    m_isOutdated = false;
    m_picture = made();
    m_changedPixels = m_picture.isNull() ? 0 : pixelsChangedByBitmap(m_picture);
    Q_EMIT outdatedChanged();
    Q_EMIT pictureChanged();
}

QImage ImagesController::made() const
{
    const OdApDocument* document = m_documents.curDocument();
    if (m_source == DrawingSource)
        return document ? velm::convertImage(drawingPreview(*document->database(), wxSize(800, 600),
                                                            wxGuiColour(ut::EGuiColor::Grey0)))
                        : QImage();
    if (m_source == TestCardSource)
        return testCard();
    const int icon = m_source - FirstIconSource;
    if (icon >= m_icons.size())
        return m_file;
    const int largest = velm::BitmapLookupSize::s_lookup.back();
    return velm::getQtToolBitmap(m_icons[icon], largest, false, m_theme).bitmapQt();
}

void ImagesController::askForFile()
{
    // Once the page is done with its click: the dialog runs a loop of its own.
    wxTheApp->CallAfter([controller = QPointer(this)] {
        wxFileDialog dialog(wxTheApp->GetTopWindow(), _("Open Picture"), {}, {},
                            _("Pictures (*.png;*.jpg;*.jpeg)|*.png;*.PNG;*.jpg;*.JPG;*.jpeg;*.JPEG|All files|*"),
                            wxFD_OPEN | wxFD_FILE_MUST_EXIST);
        if (dialog.ShowModal() == wxID_OK && controller)
            controller->load(velm::toQt(dialog.GetPath()));
    });
}

QImage ImagesController::strip(const QString& icon, bool isDark) const
{
    constexpr int gap = 8;
    const auto& sizes = velm::BitmapLookupSize::s_lookup;
    const int width = std::accumulate(sizes.begin(), sizes.end(), gap) + gap * static_cast<int>(sizes.size());
    QImage strip(width, sizes.back() + 2 * gap, QImage::Format_ARGB32_Premultiplied);
    strip.fill(isDark ? QColor(43, 47, 51) : QColor(245, 246, 247));
    QPainter painter(&strip);
    int x = gap;
    for (const int size : sizes) {
        const ut::EGuiColorTheme theme = isDark ? ut::EGuiColorTheme::Dark : ut::EGuiColorTheme::Light;
        painter.drawImage(x, (strip.height() - size) / 2, velm::getQtToolBitmap(icon, size, false, theme).bitmapQt());
        x += size + gap;
    }
    return strip;
}

void ImagesController::documentBecameCurrent(OdApDocument*)
{
    refresh();
}

void ImagesController::setProblem(const QString& problem)
{
    if (std::exchange(m_problem, problem) != problem)
        Q_EMIT problemChanged();
}
} // namespace workbench
