#pragma once

#include "platform_export.h"

#include <wx/dialog.h>

namespace qwc {
/// The host's base of all dialogs. What its modal run does is the host's own.
class PLATFORM_EXPORT qwxDialog : public wxDialog
{
public:
    using wxDialog::wxDialog;
    ~qwxDialog() override;
};
} // namespace qwc
