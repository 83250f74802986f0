#include "velm/dialogs/basepopupcontroller.h"

namespace velm {
BasePopupController::BasePopupController() = default;
BasePopupController::~BasePopupController() = default;
} // namespace velm
