#include "velm/bridge/qtcontrollerwrapper.h"
