#pragma once

namespace workbench {
class Commands;
class MainFrame;

/// The command that tells what is amiss in the drawing. The frame outlives the commands.
void addHealthCommands(Commands& commands, MainFrame& frame);
} // namespace workbench
