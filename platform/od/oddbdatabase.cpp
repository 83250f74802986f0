#include "od/oddbdatabase.h"
