#include "velm/dialogs/addrenamedialogcontroller.h"
