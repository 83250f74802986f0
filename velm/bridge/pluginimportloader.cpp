#include "velm/bridge/pluginimportloader.h"
