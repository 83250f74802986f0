#include "velm/bridge/qtwindowparent.h"
