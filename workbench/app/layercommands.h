#pragma once

namespace workbench {
class Commands;
class MainFrame;

/// The commands that hide and show layers. The frame outlives the commands.
void addLayerCommands(Commands& commands, MainFrame& frame);
} // namespace workbench
