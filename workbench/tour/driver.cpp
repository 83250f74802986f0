#include "tour/driver.h"
