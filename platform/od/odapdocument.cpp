#include "od/odapdocument.h"
