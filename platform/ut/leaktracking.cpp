#include "ut/leaktracking.h"
