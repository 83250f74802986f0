#pragma once

#include "drawing/databasebuilder.h"
#include "drawing/dxfgroups.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace workbench {

/// Takes from a file's tables and objects what dxflib doesn't report, and puts it into the builder's database:
/// dimension styles, layouts, and the descriptions and plot style names of layers.
class DxfRecords
{
public:
    using Groups = std::span<const DxfGroup>; // one object, from its group with code 0 on

    explicit DxfRecords(DatabaseBuilder& builder) : m_builder(builder) {}

    void noteHeader(Groups header);
    void note(Groups record);
    /// Sets what refers to records that may stand further down in the file.
    void finish();

private:
    using Names = std::map<std::string_view, std::wstring>; // by handle
    struct Layer
    {
        std::wstring name;
        OdString description;
        std::string_view plotStyle; // its handle
    };

    void noteName(Groups record, Names& names) const;
    void noteLayer(Groups record);
    void noteDimStyle(Groups record);
    void noteDictionary(Groups record);
    void noteLayout(Groups record);
    void addLayouts();

    DatabaseBuilder& m_builder;
    bool m_hasNamedPlotStyles = false;
    std::string_view m_plotStyleDictionary; // its handle
    Names m_blocks;
    Names m_plotStyles;
    Names m_textStyles;
    std::vector<Layer> m_layers;
    std::vector<std::pair<std::wstring, std::wstring>> m_layouts; // their names and those of their blocks
    // Styles, not owned, and the handles of what they use, which may come later.
    std::vector<std::pair<OdDbDimStyleTableRecord*, std::string_view>> m_dimTextStyles;
    std::vector<std::pair<OdDbDimStyleTableRecord*, std::string_view>> m_leaderArrowheads;
};

} // namespace workbench
