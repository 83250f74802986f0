#include "velm/dialogs/basepopupcontroller.h"
