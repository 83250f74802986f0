#include "velm/bridge/notifications.h"
