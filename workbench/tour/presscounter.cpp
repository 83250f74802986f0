#include "tour/presscounter.h"

#include <QCoreApplication>
#include <QEvent>

namespace workbench {
PressCounter::PressCounter()
{
    qApp->installEventFilter(this);
    wxEvtHandler::AddFilter(this);
}

PressCounter::~PressCounter()
{
    wxEvtHandler::RemoveFilter(this);
}

bool PressCounter::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && object->isWindowType())
        ++m_count;
    return false;
}

int PressCounter::FilterEvent(wxEvent& event)
{
    const wxEventType type = event.GetEventType();
    for (const wxEventType press : {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_DCLICK,
                                    wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK})
        m_count += type == press ? 1 : 0;
    return Event_Skip;
}
} // namespace workbench
