#pragma once

#include "host/qwc.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/basedialogcontroller.h"
#include "velm/dialogs/ihostdialog.h"

#include <QUrl>

#include <wx/weakref.h>

namespace workbench {
class PageGroup;
class PagePanel;

/// The signals by which the page of a dialog ends it.
class DialogSignals : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    void accepted();
    void rejected();
};

/// A window of its own with a page in it. Whatever would end it - the page's signals accepted() and rejected(), the
/// controller's signals, Escape, the window's close button - first asks the controller, which may keep it open.
class PageDialog : public qwc::qwxDialog
{
public:
    /// The controller is not owned and outlives the dialog.
    PageDialog(PageGroup& pages, const QUrl& page, velm::BaseDialogController& controller, wxWindow* parent,
               const velm::DialogOptions& options);
    ~PageDialog() override;

    int ShowModal() override;
    void EndModal(int code) override;
    /// Ends without asking the controller.
    void abandon();
    PagePanel& panel() { return *m_panel; }

private:
    void end(int code);
    void connectPage();
    void runModalRunner();

    velm::BaseDialogController& m_controller;
    PagePanel* m_panel = nullptr; // owned by the window tree
    bool m_isAsking = false;
    DialogSignals m_signals;
};

/// A PageDialog in the form in which velm's callers own it.
class HostDialog : public velm::IHostDialog
{
public:
    HostDialog(PageGroup& pages, const QUrl& page, velm::BaseDialogController* controller, wxWindow* parent,
               const velm::DialogOptions& options);
    ~HostDialog() override;

    void show() override;
    int showModal() override;

private:
    wxWeakRef<PageDialog> m_dialog; // owned, unless the window above it died first
};
} // namespace workbench
