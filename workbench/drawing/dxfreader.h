#pragma once

#include "od/oddbdatabase.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace workbench {

struct DxfReadResult
{
    std::unique_ptr<OdDbDatabase> database; ///< null when the file can't be read or reading was cancelled
    OdString error; ///< a sentence that names the file, what is wrong, and the line where there is one; or empty
    bool cancelled = false;
    std::map<std::string, int> skipped; ///< how many entities of each kind (as the file names it) were left out
    int entityCount = 0;                ///< in the model and the paper spaces; those inside of blocks don't count
};

/// Reads a text DXF drawing. `progress` gets 0 to 100, never less than before, and returns false to cancel; it may be
/// empty. A damaged file gives no database and says why.
/// Supported: layers, linetypes, text and dimension styles, blocks and layouts; points, lines, polylines, circles,
/// arcs, ellipses, splines (as polylines), texts, inserts, and outlines of solids and faces; dimensions as the blocks
/// that show them. Not supported: hatches, images, infinite lines, 3D bodies; lines of text beyond 1000 bytes, which
/// are shortened unless they are paragraphs.
DxfReadResult readDxf(const OdString& fileName, const std::function<bool(int percent)>& progress);

} // namespace workbench
