#include "ut/environment.h"
