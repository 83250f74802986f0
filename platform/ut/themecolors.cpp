#include "ut/themecolors.h"
