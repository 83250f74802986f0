#include "velm/units/qtfontconfig.h"
