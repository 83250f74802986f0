#include "velm/dialogs/modalrunner.h"
