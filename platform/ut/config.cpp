#include "ut/config.h"
