#include "host/contextarea.h"

#include "host/nativewindow.h"
#include "host/pagepanel.h"
#include "host/pageview.h"
#include "velm/dialogs/basedialogcontroller.h"
#include "velm/dialogs/ihostdialog.h"

#include <QQuickItem>

#include <wx/sizer.h>
#include <wx/weakref.h>

namespace workbench {
namespace {
constexpr int areaWidth = 232;

/// A page in the area, in the form in which velm's callers own it.
class ContextPanel : public velm::IHostDialog
{
public:
    ContextPanel(ContextArea& area, PagePanel* panel) : m_area(&area), m_panel(panel)
    {
        area.GetSizer()->Add(panel, wxSizerFlags(1).Expand());
    }

    ~ContextPanel() override
    {
        if (!m_panel)
            return;
        // The page goes at once, since the controller dies next. Its window may be handing on the very key that ended
        // the command.
        m_panel->view()->setRoot(nullptr);
        m_panel->Hide();
        m_area->GetSizer()->Detach(m_panel.get());
        m_area->CallAfter([panel = m_panel] {
            if (panel)
                panel->Destroy();
        });
    }

    void show() override
    {
        if (m_panel)
            m_area->Layout();
    }

    /// It is never modal.
    int showModal() override { return wxID_CANCEL; }

private:
    wxWeakRef<ContextArea> m_area;
    wxWeakRef<PagePanel> m_panel; // owned by the area
};
} // namespace

ContextArea::ContextArea(wxWindow* parent, PageGroup& pages) : wxPanel(parent), m_pages(pages)
{
    Hide();
    SetMinSize(wxSize(FromDIP(areaWidth), -1));
    SetSizer(new wxBoxSizer(wxVERTICAL));
}

std::unique_ptr<velm::IHostDialog> ContextArea::createPanel(const QUrl& page, velm::BaseDialogController& controller)
{
    auto* panel = new PagePanel(this, m_pages, page, &controller);
    panel->setAcceleratorTable(m_accelerators);
    return std::make_unique<ContextPanel>(*this, panel);
}

void ContextArea::showArea(bool shown)
{
    Show(shown);
    GetParent()->Layout();
}

bool ContextArea::hasKeyboard() const
{
    for (const wxWindow* panel : GetChildren())
        if (native::isFocusWidget(*panel))
            return true;
    return false;
}

void ContextArea::takeKeyboard()
{
    // A page that has gone leaves its hidden window for a while.
    if (!GetSizer()->IsEmpty())
        GetSizer()->GetItem(GetSizer()->GetItemCount() - 1)->GetWindow()->SetFocus();
}
} // namespace workbench
