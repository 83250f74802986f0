#include "drawing/dxfrecords.h"

#include <algorithm>

namespace workbench {

void DxfRecords::noteHeader(Groups header)
{
    for (std::size_t i = 0; i + 1 < header.size(); ++i)
        if (header[i].code == 9 && header[i].value == "$PSTYLEMODE")
            m_hasNamedPlotStyles = header[i + 1].value == "0"; // otherwise they go by colour
}

void DxfRecords::note(Groups record)
{
    const std::string_view type = record.front().value;
    if (type == "LAYER")
        noteLayer(record);
    else if (type == "STYLE")
        noteName(record, m_textStyles);
    else if (type == "DIMSTYLE")
        noteDimStyle(record);
    else if (type == "BLOCK_RECORD")
        noteName(record, m_blocks);
    else if (type == "DICTIONARY" || type == "ACDBDICTIONARYWDFLT")
        noteDictionary(record);
    else if (type == "LAYOUT")
        noteLayout(record);
}

void DxfRecords::finish()
{
    addLayouts();
    const OdDbDatabase& database = m_builder.database();
    for (const Layer& noted : m_layers) {
        if (OdDbLayerTableRecord* layer = database.findLayer(noted.name)) {
            layer->setDescription(noted.description);
            if (m_hasNamedPlotStyles)
                layer->setPlotStyleName(m_plotStyles[noted.plotStyle]);
        }
    }
    for (const auto& [style, handle] : m_dimTextStyles) {
        const OdDbTextStyleTableRecord* textStyle = database.findTextStyle(m_textStyles[handle]);
        style->setDimtxsty((textStyle ? textStyle : database.findTextStyle(L"Standard"))->objectId());
    }
    for (const auto& [style, handle] : m_leaderArrowheads)
        style->setDimldrblk(m_blocks[handle]);
}

void DxfRecords::noteName(Groups record, Names& names) const
{
    // Old files have no handles.
    if (const std::string_view handle = valueOf(record, 5); !handle.empty())
        names[handle] = m_builder.text(valueOf(record, 2));
}

void DxfRecords::noteLayer(Groups record)
{
    Layer& layer = m_layers.emplace_back();
    layer.name = m_builder.text(valueOf(record, 2));
    layer.plotStyle = valueOf(record, 390);
    // Descriptions are private data of the application that keeps layer standards: the second of its texts.
    bool inStandard = false;
    int texts = 0;
    for (const DxfGroup& group : record) {
        if (group.code == 1001)
            inStandard = group.value == "AcAecLayerStandard";
        else if (inStandard && group.code == 1000 && ++texts == 2)
            layer.description = m_builder.text(group.value);
    }
}

void DxfRecords::noteDimStyle(Groups record)
{
    const std::string_view name = valueOf(record, 2);
    if (name.empty())
        return;
    OdDbDimStyleTableRecord* style = m_builder.database().addDimStyle(m_builder.text(name));
    for (const auto& [code, value] : record) {
        if (code == 40)
            style->setDimscale(numberOf(value));
        else if (code == 41)
            style->setDimasz(numberOf(value));
        else if (code == 140)
            style->setDimtxt(numberOf(value));
        else if (code == 271)
            style->setDimdec(static_cast<int>(std::clamp(numberOf(value), 0.0, 8.0)));
    }
    m_dimTextStyles.emplace_back(style, valueOf(record, 340));
    m_leaderArrowheads.emplace_back(style, valueOf(record, 341));
}

void DxfRecords::noteDictionary(Groups record)
{
    const std::string_view handle = valueOf(record, 5);
    const bool holdsPlotStyles = !handle.empty() && handle == m_plotStyleDictionary;
    std::string_view name;
    for (const DxfGroup& group : record) {
        if (group.code == 3) {
            name = group.value;
        } else if (group.code == 350 || group.code == 360) {
            if (name == "ACDB_PLOTSTYLENAME")
                m_plotStyleDictionary = group.value;
            else if (holdsPlotStyles)
                m_plotStyles[group.value] = m_builder.text(name);
        }
    }
}

void DxfRecords::noteLayout(Groups record)
{
    bool inLayout = false;
    std::wstring name;
    std::wstring block;
    for (const DxfGroup& group : record) {
        if (group.code == 100)
            inLayout = group.value == "AcDbLayout";
        else if (inLayout && group.code == 1)
            name = m_builder.text(group.value);
        else if (inLayout && group.code == 330)
            block = m_blocks[group.value];
    }
    if (!name.empty())
        m_layouts.emplace_back(name, block);
}

void DxfRecords::addLayouts()
{
    OdDbDatabase& database = m_builder.database();
    // The one that every database has takes its name first, since another may have its old one.
    std::stable_partition(m_layouts.begin(), m_layouts.end(),
                          [](const auto& layout) { return OdString(layout.second).iCompare(L"*Paper_Space") == 0; });
    for (const auto& [name, blockName] : m_layouts) {
        OdDbBlockTableRecord* block = database.findBlock(blockName);
        if (!block || block == database.modelSpace())
            continue;
        if (auto* layout = block->getLayoutId().open<OdDbLayout>())
            database.rename(*layout, name);
        else
            database.addLayout(name, block);
    }
}

} // namespace workbench
