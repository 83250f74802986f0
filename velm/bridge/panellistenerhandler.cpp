#include "velm/bridge/panellistenerhandler.h"
