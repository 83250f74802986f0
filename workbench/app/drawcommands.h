#pragma once

namespace workbench {
class Commands;
class MainFrame;

/// The commands that draw, step by step. The frame outlives the commands.
void addDrawCommands(Commands& commands, MainFrame& frame);
/// What is typed and picked goes to the command that runs, and what it doesn't understand to the commands.
void connectCommandRun(Commands& commands, MainFrame& frame);
/// Escape, wherever it was pressed: it takes back what is typed, picked, run or selected, the innermost of it.
void escapeCommand(MainFrame& frame);
} // namespace workbench
