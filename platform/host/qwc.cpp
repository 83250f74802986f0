#include "host/qwc.h"

namespace qwc {
qwxDialog::~qwxDialog() = default;
}
