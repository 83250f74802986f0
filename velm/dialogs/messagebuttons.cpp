#include "velm/dialogs/messagebuttons.h"
