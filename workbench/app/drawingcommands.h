#pragma once

namespace workbench {
class Commands;
class MainFrame;

/// The commands about what is in the drawing and how it is shown. The frame outlives the commands.
void addDrawingCommands(Commands& commands, MainFrame& frame);
} // namespace workbench
