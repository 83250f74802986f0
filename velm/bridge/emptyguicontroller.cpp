#include "velm/bridge/externalfunctions.h"
