#include "od/odapdocmanager.h"
