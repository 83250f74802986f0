#include "tour/tour.h"
namespace workbench { int runTour(WorkbenchApp&, const QString&) { return 0; } }
