#include "host/qwc.h"
