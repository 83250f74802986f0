#pragma once

#include "velm/velm_export.h"

namespace velm {
/// A dialog window of the host with a page in it. Whoever got it owns it and destroys it before its controller.
class VELM_EXPORT IHostDialog
{
public:
    virtual ~IHostDialog();
    virtual void show() = 0;
    /// Runs the dialog and gives its end code: 5100 for OK, 5101 for Cancel.
    virtual int showModal() = 0;
};
} // namespace velm
