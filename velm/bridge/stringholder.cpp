#include "velm/bridge/stringholder.h"
