#include "od/oddbobject.h"
