#include "velm/units/settingsunitsdataproviders.h"
