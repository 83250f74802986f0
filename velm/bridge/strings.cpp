#include "velm/bridge/strings.h"
