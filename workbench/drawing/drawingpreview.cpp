#include "drawing/drawingpreview.h"

#include "drawing/drawingpainter.h"

#include <wx/graphics.h>
#include <wx/image.h>

#include <algorithm>

namespace workbench {
wxImage drawingPreview(const OdDbDatabase& database, const wxSize& pixels, const wxColour& background)
{
    wxImage image(pixels);
    image.InitAlpha();
    std::fill_n(image.GetAlpha(), pixels.x * pixels.y, static_cast<unsigned char>(wxIMAGE_ALPHA_TRANSPARENT));
    const Tessellation tessellation = tessellate(database);
    DrawingView view;
    view.size = pixels;
    view.fit(tessellation.box);
    std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(image));
    DrawingPainter(*context, view, background).paint(tessellation);
    context.reset(); // which writes to the image
    return image;
}
} // namespace workbench
