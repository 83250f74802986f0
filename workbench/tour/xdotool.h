#pragma once

#include <QStringList>

namespace workbench {
/// Moves the mouse and presses keys by the tool of that name. A DriverError tells when it can't.
void xdotool(const QStringList& arguments);
} // namespace workbench
