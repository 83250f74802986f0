#pragma once

namespace workbench {
class Commands;
class MainFrame;

/// The commands about the program, its pages and the drawing as a whole. The frame outlives the commands.
void addFrameCommands(Commands& commands, MainFrame& frame);
} // namespace workbench
