#include "velm/dialogs/ihostdialog.h"

namespace velm {
IHostDialog::~IHostDialog() = default;
}
