#include "velm/bridge/iguicontroller.h"
