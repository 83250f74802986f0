#include "velm/bridge/urlandcontroller.h"
