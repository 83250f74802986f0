#include "props/arrowheadrecords.h"

#include "drawing/arrowheads.h"
#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"

#include <QPainter>
#include <QPainterPath>

#include <wx/translation.h>

#include <algorithm>

namespace workbench {
namespace {
/// The arrowhead at the left, and a line from it to the right edge.
QImage picture(const Arrowhead& arrowhead, const QSize& size, const QColor& line)
{
    constexpr double headShare = 0.6; // of the height
    if (size.isEmpty())
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const double unit = size.height() * headShare;
    // On the middle of a row of pixels, where the line is sharp.
    const QPointF tip(unit, std::floor(size.height() / 2.0) + 0.5);
    const auto place = [&](double x, double y) { return tip + QPointF(x, -y) * unit; };
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, 1.0));
    if (arrowhead.isFilled)
        painter.setBrush(line);
    for (const std::vector<OdGePoint3d>& chain : arrowhead.chains) {
        QPainterPath path;
        path.moveTo(place(chain.front().x, chain.front().y));
        for (const OdGePoint3d& point : chain)
            path.lineTo(place(point.x, point.y));
        painter.drawPath(path);
    }
    painter.drawLine(place(arrowhead.lineFrom, 0.0), QPointF(size.width(), tip.y()));
    return image;
}

velm::ArrowHeadRecord record(const Arrowhead& arrowhead, const QSize& size, const QColor& line)
{
    return {velm::toQt(arrowhead.internalName), velm::toQt(wxGetTranslation(arrowhead.name)),
            picture(arrowhead, size, line)};
}

std::vector<velm::ArrowHeadRecord> records(std::span<const Arrowhead> arrowheads, const QSize& size, const QColor& line)
{
    std::vector<velm::ArrowHeadRecord> result;
    for (const Arrowhead& arrowhead : arrowheads)
        result.push_back(record(arrowhead, size, line));
    return result;
}
} // namespace

std::vector<velm::ArrowHeadRecord> arrowheadRecords(const QSize& size, const QColor& line)
{
    return records(arrowheads().first(commonArrowheads), size, line);
}

std::vector<velm::ArrowHeadRecord> allArrowheadRecords(const OdDbDatabase* database, const QSize& size,
                                                       const QColor& line)
{
    std::vector<velm::ArrowHeadRecord> result = records(arrowheads(), size, line);
    if (!database)
        return result;
    for (const OdDbBlockTableRecord* block : database->blocks()) {
        const OdString& name = block->getName();
        // Blocks without a name of their own, and those that stand for an arrowhead in the file, are no choice.
        if (name.isEmpty() || name.getAt(0) == L'*' || findArrowhead(name))
            continue;
        result.push_back(arrowheadRecord(velm::toQt(name), size, line));
    }
    return result;
}

velm::ArrowHeadRecord arrowheadRecord(const QString& internalName, const QSize& size, const QColor& line)
{
    if (const Arrowhead* known = findArrowhead(velm::odFromQt(internalName)))
        return record(*known, size, line);
    return {internalName, internalName, {}};
}
} // namespace workbench
