#include "desktop/desktop.h"
