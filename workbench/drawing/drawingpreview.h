#pragma once

class OdDbDatabase;
class wxColour;
class wxImage;
class wxSize;

namespace workbench {
/// All of the model space on a clear ground, as the canvas draws it, in colours that are seen on the background.
wxImage drawingPreview(const OdDbDatabase& database, const wxSize& pixels, const wxColour& background);
} // namespace workbench
