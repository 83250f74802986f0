#include "tour/presscounter.h"

#include <QCoreApplication>
#include <QEvent>

namespace workbench {
PressCounter::PressCounter() : m_host([this] { ++m_count; })
{
    qApp->installEventFilter(this);
}

bool PressCounter::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && object->isWindowType())
        ++m_count;
    return false;
}
} // namespace workbench
