#include "velm/dialogs/idialogfactory.h"
