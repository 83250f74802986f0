#include "panels/drawinginfo.h"

#include "od/oddbdatabase.h"
#include "od/oddbdimension.h"
#include "velm/bridge/conversions.h"

#include <QDir>
#include <QFileInfo>
#include <QVariantMap>

#include <map>
#include <numbers>

namespace workbench {
namespace {
QVariantMap row(const QString& label, const QString& value)
{
    return {{QStringLiteral("label"), label}, {QStringLiteral("value"), value}};
}

template <typename T>
bool is(const OdDbEntity* entity)
{
    return dynamic_cast<const T*>(entity) != nullptr;
}

QString kindOf(const OdDbEntity* entity)
{
    if (is<OdDbLine>(entity))
        return DrawingInfo::tr("Lines");
    if (is<OdDbPolyline>(entity))
        return DrawingInfo::tr("Polylines");
    if (is<OdDbLeader>(entity))
        return DrawingInfo::tr("Leaders");
    if (is<OdDbCircle>(entity))
        return DrawingInfo::tr("Circles");
    if (is<OdDbArc>(entity))
        return DrawingInfo::tr("Arcs");
    if (is<OdDbEllipse>(entity))
        return DrawingInfo::tr("Ellipses");
    if (is<OdDbText>(entity))
        return DrawingInfo::tr("Texts");
    if (is<OdDbPoint>(entity))
        return DrawingInfo::tr("Points");
    return is<OdDbBlockReference>(entity) ? DrawingInfo::tr("Blocks inserted") : DrawingInfo::tr("Others");
}
} // namespace

DrawingInfo::DrawingInfo(OdApDocManager& documents) : m_documents(documents)
{
    m_documents.addReactor(this);
    documentBecameCurrent(m_documents.curDocument());
}

DrawingInfo::~DrawingInfo()
{
    m_documents.removeReactor(this);
}

void DrawingInfo::documentBecameCurrent(OdApDocument* document)
{
    m_fileName.clear();
    m_folder.clear();
    m_contents.clear();
    m_units.clear();
    m_entityCount = 0;
    if (document) {
        const QFileInfo file(velm::toQt(document->fileName()));
        m_fileName = file.fileName();
        m_folder = QDir::toNativeSeparators(file.path());

        OdDbDatabase* database = document->database();
        std::map<QString, int> counts;
        for (const OdDbLayout* layout : database->layouts())
            if (const auto* space = layout->getBlockTableRecordId().open<OdDbBlockTableRecord>())
                for (const OdDbObjectId& id : space->entities())
                    if (const auto* entity = id.open<OdDbEntity>()) {
                        ++counts[kindOf(entity)];
                        ++m_entityCount;
                    }
        for (const auto& [kind, count] : counts)
            m_contents.append(row(kind, QString::number(count)));
        m_contents.append(row(tr("Layers"), QString::number(database->layers().size())));
        m_contents.append(row(tr("Linetypes"), QString::number(database->linetypes().size())));

        const OdUnitsFormatter& formatter = database->formatter();
        m_units.append(row(tr("A length of 12.5"), velm::toQt(formatter.formatLinear(12.5))));
        m_units.append(row(tr("A quarter turn"), velm::toQt(formatter.formatAngle(std::numbers::pi / 2))));
    }
    Q_EMIT changed();
}
} // namespace workbench
