#include "od/odstring.h"
