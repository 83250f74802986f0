#include "velm/dialogs/ihostdialog.h"
