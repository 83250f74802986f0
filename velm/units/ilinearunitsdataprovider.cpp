#include "velm/units/ilinearunitsdataprovider.h"
