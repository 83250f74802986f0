#include "velm/bridge/nativewindows.h"
