#include "velm/screens/isystemwindow.h"

namespace velm {
ISystemWindow::~ISystemWindow() = default;
}
