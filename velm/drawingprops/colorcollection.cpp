#include "velm/drawingprops/colorcollection.h"
