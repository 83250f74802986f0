#include "velm/theme/qtthemecolors.h"
