#include "velm/bridge/engine.h"
