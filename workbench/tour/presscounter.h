#pragma once

#include "host/nativewindow.h"

#include <QObject>

namespace workbench {
/// Counts the presses of mouse buttons that reach the program's windows, whichever toolkit they are for: at least one
/// for each. To be made and to die on the program's thread.
class PressCounter : public QObject
{
public:
    PressCounter();

    unsigned count() const { return m_count; }

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    unsigned m_count = 0;
    native::PressWatcher m_host;
};
} // namespace workbench
