#include "drawing/tessellation.h"

#include "drawing/arrowheads.h"
#include "drawing/curves.h"
#include "od/oddbdimension.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

namespace workbench {

namespace {

constexpr std::size_t mostPoints = 8'000'000;
constexpr std::size_t mostVisits = 3'000'000;
constexpr std::size_t deepestNesting = 32;
constexpr double characterWidth = 0.85; // in text heights, roughly
constexpr double fullTurn = 2.0 * std::numbers::pi;

/// What an entity takes over from the insert that it is drawn for.
struct Surroundings
{
    OdGeMatrix3d transform;
    const OdDbLayerTableRecord* layer = nullptr; // not owned; null in the model space
    OdCmColor color = OdCmColor::fromIndex(7);
    int lineWeight = OdDb::kLnWtByLwDefault;
    const OdDbLinetypeTableRecord* linetype = nullptr; // not owned
};

/// Counter-clockwise from start to end, at most a full turn; equal angles are a full turn.
double sweepOf(double start, double end)
{
    const double sweep = std::fmod(end - start, fullTurn);
    return sweep <= 1e-9 ? sweep + fullTurn : sweep;
}

std::vector<std::wstring> linesOf(const std::wstring& text)
{
    std::vector<std::wstring> lines(1);
    for (const wchar_t character : text)
        if (character == L'\n')
            lines.emplace_back();
        else
            lines.back() += character;
    return lines;
}

class Tessellator
{
public:
    explicit Tessellator(const OdDbDatabase& database) : m_database(database)
    {
        m_layer0 = database.findLayer(L"0");
        m_byBlock = database.findLinetype(L"ByBlock");
        m_byLayer = database.findLinetype(L"ByLayer");
    }

    Tessellation run();

private:
    bool isExhausted() const { return m_visits > mostVisits || m_result.points.size() > mostPoints; }
    Surroundings settled(const OdDbEntity& entity, const Surroundings& around) const;
    void addEntity(const OdDbEntity& entity, const Surroundings& around);
    void addReference(const OdDbBlockReference& reference, const Surroundings& own);
    void addText(const OdDbText& text, const Surroundings& own);
    void addLeader(const OdDbLeader& leader, const Surroundings& own);
    void addChain(const std::vector<OdGePoint3d>& chain, const Surroundings& own, bool isFilled = false);
    void addPiece(Piece piece, const Surroundings& own);
    int dashPattern(const OdDbLinetypeTableRecord* linetype);

    const OdDbDatabase& m_database;
    const OdDbLayerTableRecord* m_layer0 = nullptr;     // not owned
    const OdDbLinetypeTableRecord* m_byBlock = nullptr; // not owned
    const OdDbLinetypeTableRecord* m_byLayer = nullptr; // not owned
    Tessellation m_result;
    std::uint32_t m_entity = 0;
    std::size_t m_visits = 0;
    std::vector<const OdDbBlockTableRecord*> m_openBlocks; // not owned
    std::map<const OdDbLinetypeTableRecord*, int> m_patterns;
};

Tessellation Tessellator::run()
{
    Surroundings top;
    top.transform = OdGeMatrix3d();
    for (const OdDbObjectId& id : m_database.modelSpace()->entities()) {
        if (const auto* entity = id.open<OdDbEntity>())
            addEntity(*entity, top);
        ++m_entity;
    }
    return std::move(m_result);
}

Surroundings Tessellator::settled(const OdDbEntity& entity, const Surroundings& around) const
{
    Surroundings own = around;
    own.layer = entity.layerId().open<OdDbLayerTableRecord>();
    // In a block, layer "0" stands for the layer of the insert.
    if (!own.layer || (own.layer == m_layer0 && around.layer))
        own.layer = around.layer ? around.layer : m_layer0;

    if (entity.color().isByLayer() || entity.color().isNone())
        own.color = own.layer->color();
    else if (!entity.color().isByBlock())
        own.color = entity.color();

    if (entity.lineWeight() == OdDb::kLnWtByLayer)
        own.lineWeight = own.layer->lineWeight();
    else if (entity.lineWeight() != OdDb::kLnWtByBlock)
        own.lineWeight = entity.lineWeight();

    const auto* linetype = entity.linetypeId().open<OdDbLinetypeTableRecord>();
    if (!linetype || linetype == m_byLayer)
        own.linetype = own.layer->linetypeObjectId().open<OdDbLinetypeTableRecord>();
    else if (linetype != m_byBlock)
        own.linetype = linetype;
    return own;
}

void Tessellator::addEntity(const OdDbEntity& entity, const Surroundings& around)
{
    ++m_visits;
    if (isExhausted())
        return;
    const Surroundings own = settled(entity, around);
    if (own.layer->isFrozen())
        return;
    // An insert on a layer that is off still shows what its block has on other layers.
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity)) {
        addReference(*reference, own);
        return;
    }
    if (own.layer->isOff())
        return;
    std::vector<OdGePoint3d> chain;
    if (const auto* line = dynamic_cast<const OdDbLine*>(&entity)) {
        addChain({line->startPoint, line->endPoint}, own);
    } else if (const auto* polyline = dynamic_cast<const OdDbPolyline*>(&entity)) {
        const auto& vertices = polyline->vertices;
        if (vertices.empty())
            return;
        chain.push_back(vertices.front().point);
        for (std::size_t i = 1; i < vertices.size(); ++i)
            appendBulge(chain, vertices[i - 1].point, vertices[i].point, vertices[i - 1].bulge);
        if (polyline->closed)
            appendBulge(chain, vertices.back().point, vertices.front().point, vertices.back().bulge);
        addChain(chain, own);
    } else if (const auto* leader = dynamic_cast<const OdDbLeader*>(&entity)) {
        addLeader(*leader, own);
    } else if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity)) {
        appendEllipticArc(chain, circle->center, {circle->radius, 0, 0}, {0, circle->radius, 0}, 0.0, fullTurn);
        addChain(chain, own);
    } else if (const auto* arc = dynamic_cast<const OdDbArc*>(&entity)) {
        appendEllipticArc(chain, arc->center, {arc->radius, 0, 0}, {0, arc->radius, 0}, arc->startAngle,
                          sweepOf(arc->startAngle, arc->endAngle));
        addChain(chain, own);
    } else if (const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity)) {
        const OdGeVector3d& major = ellipse->majorAxis;
        appendEllipticArc(chain, ellipse->center, major, OdGeVector3d{-major.y, major.x, 0} * ellipse->radiusRatio,
                          ellipse->startParam, sweepOf(ellipse->startParam, ellipse->endParam));
        addChain(chain, own);
    } else if (const auto* point = dynamic_cast<const OdDbPoint*>(&entity)) {
        addChain({point->position}, own);
    } else if (const auto* text = dynamic_cast<const OdDbText*>(&entity)) {
        addText(*text, own);
    }
}

void Tessellator::addReference(const OdDbBlockReference& reference, const Surroundings& own)
{
    const auto* block = reference.blockTableRecord.open<OdDbBlockTableRecord>();
    // A block that contains itself is drawn once.
    if (!block || m_openBlocks.size() >= deepestNesting || std::ranges::count(m_openBlocks, block) != 0)
        return;
    m_openBlocks.push_back(block);
    for (int row = 0; row < reference.rowCount && !isExhausted(); ++row)
        for (int column = 0; column < reference.columnCount && !isExhausted(); ++column) {
            ++m_visits;
            Surroundings inside = own;
            inside.transform = own.transform * reference.blockTransform(column, row);
            for (const OdDbObjectId& id : block->entities())
                if (const auto* entity = id.open<OdDbEntity>())
                    addEntity(*entity, inside);
        }
    m_openBlocks.pop_back();
}

void Tessellator::addLeader(const OdDbLeader& leader, const Surroundings& own)
{
    std::vector<OdGePoint3d> chain = leader.vertices;
    if (chain.empty())
        return;
    const auto* style = leader.dimensionStyle.open<OdDbDimStyleTableRecord>();
    const OdString name = leader.arrowhead.value_or(style ? style->dimldrblk() : OdString());
    const double size = style ? style->dimasz() * (style->dimscale() > 0.0 ? style->dimscale() : 1.0) : 1.0;
    const OdGeVector3d way = chain.size() > 1 ? chain[1] - chain[0] : OdGeVector3d();
    // An arrowhead that takes more than half of its line is left out.
    if (leader.hasArrowHead && size > 0.0 && way.length() >= 2.0 * size) {
        OdDbBlockReference place;
        place.position = chain[0];
        place.rotation = std::atan2(way.y, way.x);
        place.scaleFactors = {size, size, size};
        Surroundings head = own;
        head.linetype = nullptr;
        if (const Arrowhead* arrowhead = findArrowhead(name)) {
            chain[0] = chain[0] + way * (size * arrowhead->lineFrom / way.length());
            head.transform = own.transform * place.blockTransform();
            for (const std::vector<OdGePoint3d>& outline : arrowhead->chains)
                addChain(outline, head, arrowhead->isFilled);
        } else if (const OdDbBlockTableRecord* block = m_database.findBlock(name)) {
            place.blockTableRecord = block->objectId();
            addReference(place, head);
        }
    }
    addChain(chain, own);
}

void Tessellator::addText(const OdDbText& text, const Surroundings& own)
{
    const OdGeMatrix3d& m = own.transform;
    const double x = std::cos(text.rotation);
    const double y = std::sin(text.rotation);
    const OdGeVector3d along = {m[0][0] * x + m[0][1] * y, m[1][0] * x + m[1][1] * y, 0.0};
    const OdGeVector3d up = {m[0][1] * x - m[0][0] * y, m[1][1] * x - m[1][0] * y, 0.0};
    PlacedText placed;
    placed.position = m * text.position;
    placed.height = text.height * up.length();
    placed.rotation = std::atan2(along.y, along.x);
    placed.horizontalMode = text.horizontalMode;
    placed.verticalMode = text.verticalMode;
    placed.lines = linesOf(text.textString.wide());
    if (!(placed.height > 0.0))
        return;

    std::size_t longest = 0;
    for (const std::wstring& line : placed.lines)
        longest = std::max(longest, line.size());
    const double width = static_cast<double>(longest) * characterWidth * placed.height;
    const double height = (1.0 + static_cast<double>(placed.lines.size() - 1) * lineSpacing) * placed.height;
    const double left = -width * static_cast<int>(text.horizontalMode) / 2.0;
    const double bottom = text.verticalMode == OdDbText::VerticalMode::Top      ? -height
                          : text.verticalMode == OdDbText::VerticalMode::Middle ? -height / 2.0
                                                                                : 0.0;
    Piece piece;
    piece.text = static_cast<int>(m_result.texts.size());
    const double c = std::cos(placed.rotation);
    const double s = std::sin(placed.rotation);
    placed.extent = {left, bottom, left + width, bottom + height};
    for (const double cornerX : {left, left + width})
        for (const double cornerY : {bottom, bottom + height})
            piece.box.add(placed.position.x + c * cornerX - s * cornerY, placed.position.y + s * cornerX + c * cornerY);
    m_result.texts.push_back(std::move(placed));
    addPiece(piece, own);
}

void Tessellator::addChain(const std::vector<OdGePoint3d>& chain, const Surroundings& own, bool isFilled)
{
    Piece piece;
    piece.isFilled = isFilled;
    piece.first = static_cast<std::uint32_t>(m_result.points.size());
    piece.count = static_cast<std::uint32_t>(chain.size());
    piece.dashes = dashPattern(own.linetype);
    for (const OdGePoint3d& point : chain) {
        const OdGePoint3d world = own.transform * point;
        m_result.points.push_back({world.x, world.y});
        piece.box.add(world.x, world.y);
    }
    addPiece(piece, own);
}

void Tessellator::addPiece(Piece piece, const Surroundings& own)
{
    piece.entity = m_entity;
    piece.color = own.color;
    piece.lineWeight = own.lineWeight;
    m_result.box.add(piece.box);
    m_result.pieces.push_back(piece);
}

int Tessellator::dashPattern(const OdDbLinetypeTableRecord* linetype)
{
    if (!linetype || linetype->dashes().isEmpty())
        return -1;
    const auto [found, isNew] = m_patterns.try_emplace(linetype, static_cast<int>(m_result.dashPatterns.size()));
    if (isNew) {
        std::vector<double>& pattern = m_result.dashPatterns.emplace_back();
        for (const double dash : linetype->dashes())
            pattern.push_back(dash * m_database.getLTSCALE());
    }
    return found->second;
}

} // namespace

void Box::add(double x, double y)
{
    left = std::min(left, x);
    right = std::max(right, x);
    bottom = std::min(bottom, y);
    top = std::max(top, y);
}

void Box::add(const Box& other)
{
    left = std::min(left, other.left);
    right = std::max(right, other.right);
    bottom = std::min(bottom, other.bottom);
    top = std::max(top, other.top);
}

Tessellation tessellate(const OdDbDatabase& database)
{
    return Tessellator(database).run();
}

} // namespace workbench
