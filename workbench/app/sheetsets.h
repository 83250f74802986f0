#pragma once

namespace workbench {
class Commands;
class MainFrame;

/// Lets the panel of sheet sets open drawings, and adds its command. The frame outlives both.
void connectSheetSets(Commands& commands, MainFrame& frame);
} // namespace workbench
