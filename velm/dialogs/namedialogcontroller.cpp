#include "velm/dialogs/namedialogcontroller.h"
