#include "velm/dialogs/basedialogcontroller.h"
