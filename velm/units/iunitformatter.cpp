#include "velm/units/iunitformatter.h"
