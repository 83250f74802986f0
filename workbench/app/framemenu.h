#pragma once

#include "app/actions.h"

namespace workbench {
class MainFrame;

/// What stands in the menu bar of the program's window.
std::vector<Action> frameActions(MainFrame& frame);
} // namespace workbench
