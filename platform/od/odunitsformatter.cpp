#include "od/odunitsformatter.h"
