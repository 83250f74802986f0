#pragma once

#include "velm/velm_export.h"

#include <QObject>

class wxDialog;

namespace velm {
/// The logic of a dialog: its page talks to it, and the host asks it before the dialog closes. The host owns the
/// window; the caller owns the controller. The host connects both signals when it builds the dialog.
class VELM_EXPORT BaseDialogController : public QObject
{
    Q_OBJECT
public:
    BaseDialogController();
    ~BaseDialogController() override;

    /// Whether a modal dialog may end with that code: 5100 asks beforeOk(), 5101 beforeCancel(), others may.
    bool beforeEndModal(int returnCode);
    /// The same for a dialog that isn't modal.
    virtual bool beforeEndNonModal(int returnCode);
    virtual void afterReset();

    /// The dialog that shows the page; not owned.
    void setParentDialog(wxDialog* dialog);
    wxDialog* parentDialog();

Q_SIGNALS:
    void closeDialog();
    void endModal();

private:
    /// False keeps the dialog open; the controller has shown why.
    virtual bool beforeOk();
    virtual bool beforeCancel();

    wxDialog* m_parentDialog = nullptr; // not owned
};
} // namespace velm
