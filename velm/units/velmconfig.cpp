#include "velm/units/velmconfig.h"
