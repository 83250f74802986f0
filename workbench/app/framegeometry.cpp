#include "app/framegeometry.h"

#include "ut/config.h"

#include <wx/display.h>
#include <wx/frame.h>

namespace workbench {
namespace {
const OdString rectKey = L"MainWindow/Rectangle";
const OdString maximizedKey = L"MainWindow/Maximized";
} // namespace

void restoreGeometry(wxFrame& frame)
{
    wxRect rect;
    // A screen that the window stood on may be gone.
    if (ut::Config::read(ut::ECfgGroup::Interface, rectKey, rect) && wxDisplay::GetFromPoint(rect.GetPosition()) >= 0)
        frame.SetSize(rect);
    else
        frame.Centre();
    bool maximized = false;
    if (ut::Config::read(ut::ECfgGroup::Interface, maximizedKey, maximized) && maximized)
        frame.Maximize();
}

void storeGeometry(const wxFrame& frame)
{
    ut::Config::writeBool(ut::ECfgGroup::Interface, maximizedKey, frame.IsMaximized());
    if (!frame.IsMaximized() && !frame.IsIconized())
        ut::Config::writeRect(ut::ECfgGroup::Interface, rectKey, frame.GetRect());
}
} // namespace workbench
