#include "velm/units/settings.h"
