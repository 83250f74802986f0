#include "velm/theme/appcolorthemehelper.h"
