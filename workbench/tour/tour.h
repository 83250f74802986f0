#pragma once

#include <QString>

namespace workbench {
class WorkbenchApp;

/// Walks through the running program as a person would, on a thread of its own: checks what each step must have done
/// and saves a picture of it. Without a drawing it opens a small one of its own. Prints a line a step and gives the
/// program's exit code: 0, or 1 at the first step that failed.
int runTour(WorkbenchApp& app, const QString& folder, bool hasDrawing);
} // namespace workbench
