#include "ut/uuid.h"
