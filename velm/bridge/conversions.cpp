#include "velm/bridge/conversions.h"
