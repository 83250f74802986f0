#pragma once

#include <QObject>

#include <wx/event.h>

namespace workbench {
/// Counts the presses of mouse buttons that reach the program's windows, whichever toolkit they are for. To be made and
/// to die on the program's thread.
class PressCounter : public QObject, private wxEventFilter
{
public:
    PressCounter();
    ~PressCounter() override;

    unsigned count() const { return m_count; }

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    int FilterEvent(wxEvent& event) override;

    unsigned m_count = 0;
};
} // namespace workbench
