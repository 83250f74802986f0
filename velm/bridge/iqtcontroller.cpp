#include "velm/bridge/iqtcontroller.h"
