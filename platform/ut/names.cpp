#include "ut/names.h"
