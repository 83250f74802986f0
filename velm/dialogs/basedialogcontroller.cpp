#include "velm/dialogs/basedialogcontroller.h"

#include <wx/defs.h>

namespace velm {
BaseDialogController::BaseDialogController() = default;
BaseDialogController::~BaseDialogController() = default;

bool BaseDialogController::beforeEndModal(int returnCode)
{
    switch (returnCode) {
    case wxID_OK:
        return beforeOk();
    case wxID_CANCEL:
        return beforeCancel();
    default:
        return true;
    }
}

bool BaseDialogController::beforeEndNonModal(int returnCode)
{
    return beforeEndModal(returnCode);
}

void BaseDialogController::afterReset()
{}

void BaseDialogController::setParentDialog(wxDialog* dialog)
{
    m_parentDialog = dialog;
}

wxDialog* BaseDialogController::parentDialog()
{
    return m_parentDialog;
}

bool BaseDialogController::beforeOk()
{
    return true;
}

bool BaseDialogController::beforeCancel()
{
    return true;
}
} // namespace velm
