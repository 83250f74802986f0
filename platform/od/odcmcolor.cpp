#include "od/odcmcolor.h"
