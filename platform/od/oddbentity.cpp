#include "od/oddbentity.h"
