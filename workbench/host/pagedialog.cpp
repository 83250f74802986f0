#include "host/pagedialog.h"

#include "host/pagegroup.h"
#include "host/pagepanel.h"
#include "host/themecolours.h"
#include "velm/bridge/conversions.h"
#include "velm/dialogs/modalrunner.h"

#include <wx/sizer.h>

#include <exception>

namespace workbench {
namespace {
constexpr int smallestWidth = 280;
constexpr int smallestHeight = 80;

/// What left the runner's function, to be thrown again outside of the modal loop.
class KeptException : public velm::ICppUnitException
{
public:
    explicit KeptException(std::exception_ptr exception) : m_exception(std::move(exception)) {}
    void rethrow() override { std::rethrow_exception(m_exception); }

private:
    std::exception_ptr m_exception;
};
} // namespace

PageDialog::PageDialog(PageGroup& pages, const QUrl& page, velm::BaseDialogController& controller, wxWindow* parent,
                       const velm::DialogOptions& options)
    : qwxDialog(pages.modals().parentFor(parent), wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                wxDEFAULT_DIALOG_STYLE | (options.resizable ? wxRESIZE_BORDER : 0)),
      m_controller(controller)
{
    m_controller.setParentDialog(this);
    m_panel = new PagePanel(this, pages, page, &controller);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_panel, 1, wxEXPAND);
    wxSize size = m_panel->implicitSize();
    size.IncTo(FromDIP(wxSize(smallestWidth, smallestHeight)));
    m_panel->SetMinSize(size);
    SetSizerAndFit(sizer);
    CentreOnParent();
    m_panel->onLoaded = [this] { connectPage(); };
    connectPage();

    QObject::connect(&m_signals, &DialogSignals::accepted, &m_signals, [this] { end(wxID_OK); });
    QObject::connect(&m_signals, &DialogSignals::rejected, &m_signals, [this] { end(wxID_CANCEL); });
    QObject::connect(&m_controller, &velm::BaseDialogController::endModal, &m_signals, [this] { end(wxID_OK); });
    QObject::connect(&m_controller, &velm::BaseDialogController::closeDialog, &m_signals, [this] { end(wxID_CANCEL); });
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { end(wxID_CANCEL); });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE)
            end(wxID_CANCEL);
        else
            event.Skip();
    });
}

PageDialog::~PageDialog()
{
    m_controller.setParentDialog(nullptr);
}

void PageDialog::connectPage()
{
    QObject* root = m_panel->root();
    if (!root)
        return;
    SetTitle(velm::wxFromQt(root->property("title").toString()));
    // A page that lacks a signal has no need of it.
    const QMetaObject* type = root->metaObject();
    if (type->indexOfSignal("accepted()") >= 0)
        QObject::connect(root, SIGNAL(accepted()), &m_signals, SIGNAL(accepted()));
    if (type->indexOfSignal("rejected()") >= 0)
        QObject::connect(root, SIGNAL(rejected()), &m_signals, SIGNAL(rejected()));
}

void PageDialog::end(int code)
{
    // After the page's event that asked for it: the page's window must not go while it handles one.
    CallAfter([this, code] {
        if (IsModal()) {
            EndModal(code);
        } else if (IsShown() && !m_isAsking) {
            m_isAsking = true;
            if (m_controller.beforeEndNonModal(code))
                Hide();
            m_isAsking = false;
        }
    });
}

void PageDialog::EndModal(int code)
{
    // The controller may show a message while it is asked.
    if (m_isAsking)
        return;
    m_isAsking = true;
    const bool ends = m_controller.beforeEndModal(code);
    m_isAsking = false;
    if (ends && IsModal())
        qwxDialog::EndModal(code);
}

void PageDialog::abandon()
{
    if (IsModal())
        qwxDialog::EndModal(wxID_CANCEL);
}

int PageDialog::ShowModal()
{
    if (velm::ModalRunner::getActiveRunner())
        CallAfter(&PageDialog::runModalRunner);
    return qwxDialog::ShowModal();
}

void PageDialog::runModalRunner()
{
    velm::ModalRunner* runner = velm::ModalRunner::getActiveRunner();
    if (!runner)
        return;
    try {
        runner->run(this);
    } catch (...) {
        runner->setException(std::make_unique<KeptException>(std::current_exception()));
        abandon();
    }
}

HostDialog::HostDialog(PageGroup& pages, const QUrl& page, velm::BaseDialogController* controller, wxWindow* parent,
                       const velm::DialogOptions& options)
    : m_dialog(new PageDialog(pages, page, *controller, parent, options))
{}

HostDialog::~HostDialog()
{
    // At once: the controller dies next.
    delete m_dialog.get();
}

void HostDialog::show()
{
    if (m_dialog)
        m_dialog->Show();
}

int HostDialog::showModal()
{
    return m_dialog ? m_dialog->ShowModal() : wxID_CANCEL;
}
} // namespace workbench
