#pragma once

#include "drawing/curves.h"
#include "od/oddbdatabase.h"
#include "od/oddbdimension.h"

#include <dxflib/dl_creationadapter.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace workbench {

/// Builds a drawing database from what dxflib reports. Mirrored entities (an extrusion towards -z) are mirrored back;
/// other extrusions, widths of polylines and hatches are not supported.
class DatabaseBuilder : public DL_CreationAdapter
{
public:
    explicit DatabaseBuilder(bool isUtf8);

    /// Sets what could only be known at the end, and gives the database away. Entities that have no counterpart
    /// are counted in skipped().
    std::unique_ptr<OdDbDatabase> finish();

    std::wstring text(std::string_view value) const;
    OdDbDatabase& database() { return *m_database; }
    /// The dimension style of the leader that comes next, which dxflib leaves out.
    void setLeaderStyle(std::string_view name) { m_leaderStyle = name; }
    /// That of the entities that come next, as group 440 gives it, which dxflib leaves out; empty: by layer.
    void setTransparency(std::string_view value);
    const std::map<std::string, int>& skipped() const { return m_skipped; }
    int entityCount() const { return m_entityCount; }

    void addLayer(const DL_LayerData& data) override;
    void addLinetypeDash(double length) override;
    void addLinetype(const DL_LinetypeData& data) override;
    void addTextStyle(const DL_StyleData& data) override;
    void addBlock(const DL_BlockData& data) override;
    void endBlock() override;

    void addPoint(const DL_PointData& data) override;
    void addLine(const DL_LineData& data) override;
    void addArc(const DL_ArcData& data) override;
    void addCircle(const DL_CircleData& data) override;
    void addEllipse(const DL_EllipseData& data) override;
    void addPolyline(const DL_PolylineData& data) override;
    void addVertex(const DL_VertexData& data) override;
    void addSpline(const DL_SplineData& data) override;
    void addControlPoint(const DL_ControlPointData& data) override;
    void addFitPoint(const DL_FitPointData& data) override;
    void addKnot(const DL_KnotData& data) override;
    void addLeader(const DL_LeaderData& data) override;
    void addLeaderVertex(const DL_LeaderVertexData& data) override;
    void endEntity() override;
    void addInsert(const DL_InsertData& data) override;
    void addTrace(const DL_TraceData& data) override;
    void add3dFace(const DL_3dFaceData& data) override;
    void addSolid(const DL_SolidData& data) override;
    void addText(const DL_TextData& data) override;
    void addAttribute(const DL_AttributeData& data) override;
    void addMTextChunk(const std::string& text) override;
    void addMText(const DL_MTextData& data) override;

    void setVariableString(const std::string& key, const std::string& value, int code) override;
    void setVariableDouble(const std::string& key, double value, int code) override;
    void setVariableInt(const std::string& key, int value, int code) override;

private:
    template <typename T>
    T* append(std::unique_ptr<T> entity);
    template <typename T>
    void applyAttributes(T& target) const;
    void appendOutline(const DL_TraceData& data, bool crossed);
    OdDbObjectId linetypeId(const std::string& name) const;
    OdDbObjectId textStyleId(const std::string& name) const;
    OdGePoint3d objectPoint(double x, double y, double z) const;
    bool isMirrored() const { return extrusion->getDirection()[2] < 0.0; }

    std::unique_ptr<OdDbDatabase> m_database;
    const bool m_isUtf8;
    std::map<std::string, int> m_skipped;
    int m_entityCount = 0;
    OdDbBlockTableRecord* m_block = nullptr;  // not owned; null outside of block definitions
    OdArray<double> m_dashes;                 // of the linetype that comes next
    std::unique_ptr<OdDbPolyline> m_polyline; // until all of its vertices came
    std::unique_ptr<OdDbLeader> m_leader;     // until all of its vertices came
    std::string m_leaderStyle;
    int m_transparency = OdDb::kTransparencyByLayer;
    bool m_isMirrored = false;                                           // the polyline
    std::unique_ptr<Spline> m_spline;                                    // until all of its points came
    std::string m_paragraphs;                                            // of the paragraph text that comes next
    std::vector<std::pair<OdDbBlockReference*, std::wstring>> m_inserts; // not owned; their blocks may come later
    OdUnits m_units;
    std::wstring m_currentLayer;
    std::wstring m_currentLinetype;
    std::wstring m_currentDimStyle;
};

} // namespace workbench
