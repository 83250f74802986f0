#include "velm/theme/refreshenginetheme.h"
