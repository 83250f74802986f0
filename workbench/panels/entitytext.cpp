#include "panels/entitytext.h"

#include "drawing/entitygeometry.h"
#include "drawing/entitykind.h"
#include "od/oddbdatabase.h"
#include "od/oddbdimension.h"
#include "velm/bridge/conversions.h"

#include <QCoreApplication>

namespace workbench {
namespace {
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Entities)
};

QString length(const OdDbEntity& entity, double value)
{
    return velm::toQt(entity.database()->formatter().formatLinear(value));
}

QString angle(const OdDbEntity& entity, double radians)
{
    return velm::toQt(entity.database()->formatter().formatAngle(radians));
}

QString place(const OdDbEntity& entity, const OdGePoint3d& point)
{
    return QStringLiteral("%1, %2").arg(length(entity, point.x), length(entity, point.y));
}

QString shortened(const QString& text)
{
    constexpr int longest = 40;
    const QString line = text.simplified();
    return line.size() > longest ? line.left(longest - 1) + QChar(0x2026) : line;
}
} // namespace

std::vector<EntityMeasure> entityMeasures(const OdDbEntity& entity)
{
    if (const auto* line = dynamic_cast<const OdDbLine*>(&entity))
        return {{Texts::tr("Length"), length(entity, (line->endPoint - line->startPoint).length())},
                {Texts::tr("Start"), place(entity, line->startPoint)},
                {Texts::tr("End"), place(entity, line->endPoint)}};
    if (const auto* polyline = dynamic_cast<const OdDbPolyline*>(&entity))
        return {{Texts::tr("Length"), length(entity, *entityGeometry(*polyline).length)},
                {Texts::tr("Points"), QString::number(polyline->vertices.size())},
                {Texts::tr("Closed"), polyline->closed ? Texts::tr("Yes") : Texts::tr("No")}};
    if (const auto* leader = dynamic_cast<const OdDbLeader*>(&entity))
        return {{Texts::tr("Length"), length(entity, *entityGeometry(*leader).length)},
                {Texts::tr("Points"), QString::number(leader->vertices.size())}};
    if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity))
        return {{Texts::tr("Radius"), length(entity, circle->radius)},
                {Texts::tr("Centre"), place(entity, circle->center)}};
    if (const auto* arc = dynamic_cast<const OdDbArc*>(&entity)) {
        const double radians = sweep(*arc);
        return {{Texts::tr("Radius"), length(entity, arc->radius)},
                {Texts::tr("Angle"), angle(entity, radians)},
                {Texts::tr("Length"), length(entity, arc->radius * radians)},
                {Texts::tr("Centre"), place(entity, arc->center)}};
    }
    if (const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity)) {
        const double radius = ellipse->majorAxis.length();
        return {{Texts::tr("Greater radius"), length(entity, radius)},
                {Texts::tr("Smaller radius"), length(entity, radius * ellipse->radiusRatio)},
                {Texts::tr("Centre"), place(entity, ellipse->center)}};
    }
    if (const auto* text = dynamic_cast<const OdDbText*>(&entity))
        return {{Texts::tr("Height"), length(entity, text->height)},
                {Texts::tr("Rotation"), angle(entity, text->rotation)},
                {Texts::tr("Position"), place(entity, text->position)}};
    if (const auto* point = dynamic_cast<const OdDbPoint*>(&entity))
        return {{Texts::tr("Position"), place(entity, point->position)}};
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity))
        return {{Texts::tr("Position"), place(entity, reference->position)},
                {Texts::tr("Rotation"), angle(entity, reference->rotation)}};
    return {};
}

QString entityText(const OdDbEntity& entity)
{
    const QString kind = velm::toQt(entityKind(entity));
    if (const auto* text = dynamic_cast<const OdDbText*>(&entity))
        return Texts::tr("%1 \"%2\"").arg(kind, shortened(velm::toQt(text->textString)));
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity))
        return Texts::tr("%1 at %2").arg(kind, place(entity, reference->position));
    if (const auto* point = dynamic_cast<const OdDbPoint*>(&entity))
        return Texts::tr("%1 at %2").arg(kind, place(entity, point->position));
    const std::vector<EntityMeasure> measures = entityMeasures(entity);
    return measures.empty() ? kind
                            : QStringLiteral("%1, %2 %3").arg(kind, measures[0].label.toLower(), measures[0].value);
}
} // namespace workbench
