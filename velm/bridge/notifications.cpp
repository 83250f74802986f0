#include "velm/bridge/notifications.h"

namespace velm::notifications {
int generateSourceID()
{
    static int last = 0;
    return ++last;
}
} // namespace velm::notifications
