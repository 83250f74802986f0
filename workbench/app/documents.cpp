#include "app/documents.h"

#include "drawing/dxfreader.h"
#include "host/pagegroup.h"
#include "velm/dialogs/idialogfactory.h"

#include <QElapsedTimer>

#include <wx/filename.h>
#include <wx/progdlg.h>

#include <algorithm>
#include <memory>

namespace workbench {
namespace {
constexpr int patience = 500; // milliseconds without a progress dialog

/// A progress dialog that comes when the work takes long.
class Progress
{
public:
    Progress(PageGroup& pages, const wxString& file) : m_pages(pages), m_file(file) { m_timer.start(); }
    ~Progress()
    {
        if (m_dialog)
            m_pages.setBusy(false);
    }

    /// False when the person wants no more of it.
    bool update(int percent)
    {
        if (!m_dialog && m_timer.elapsed() > patience) {
            m_pages.setBusy(true);
            m_dialog = std::make_unique<wxProgressDialog>(
                _("Open Drawing"), wxString::Format(_("Reading %s ..."), wxFileName(m_file).GetFullName()), 100,
                m_pages.modals().parentFor(nullptr), wxPD_APP_MODAL | wxPD_CAN_ABORT);
        }
        return !m_dialog || m_dialog->Update(percent < 100 ? percent : 99);
    }

private:
    PageGroup& m_pages;
    wxString m_file;
    QElapsedTimer m_timer;
    std::unique_ptr<wxProgressDialog> m_dialog;
};
} // namespace

Documents::Documents(OdApDocManager& manager, velm::IDialogFactory& dialogs, PageGroup& pages)
    : m_manager(manager), m_dialogs(dialogs), m_pages(pages)
{}

bool Documents::open(const wxString& file)
{
    wxFileName name(file);
    name.MakeAbsolute();
    const wxString path = name.GetFullPath();
    for (OdApDocument* document : m_manager.documents())
        if (name.SameAs(wxFileName(document->fileName().c_str()))) {
            m_manager.setCurDocument(document);
            log(wxString::Format(_("Open already: %s"), name.GetFullName()));
            return true;
        }
    DxfReadResult result;
    {
        Progress progress(m_pages, path);
        result = readDxf(path.wc_str(), [&](int percent) { return progress.update(percent); });
    }
    if (!result.database) {
        if (result.cancelled)
            log(wxString::Format(_("Cancelled: %s"), path));
        else
            m_dialogs.showErrorMessage(_("Open Drawing").wc_str(), result.error, nullptr, velm::MessageButtonStyle::OK);
        return false;
    }

    m_manager.open(std::make_unique<OdApDocument>(path.wc_str(), std::move(result.database)));
    log(wxString::Format(_("Opened %s: %d entities"), wxFileName(path).GetFullName(), result.entityCount));
    for (const auto& [kind, count] : result.skipped)
        log(wxString::Format(_("Left out %d of the unknown kind %s"), count, wxString::FromUTF8(kind)));
    return true;
}

void Documents::close()
{
    m_manager.close(m_manager.curDocument());
}

void Documents::closeAll()
{
    while (current())
        close();
}

void Documents::next(bool forward)
{
    const std::vector<OdApDocument*> open = m_manager.documents();
    const auto place = static_cast<size_t>(std::ranges::find(open, current()) - open.begin());
    if (!open.empty())
        m_manager.setCurDocument(open[(place + (forward ? 1 : open.size() - 1)) % open.size()]);
}
} // namespace workbench
