#include "host/oc.h"

oc::PropertyFilterFactoriesManager::~PropertyFilterFactoriesManager() = default;
