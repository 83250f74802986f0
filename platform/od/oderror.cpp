#include "od/oderror.h"
