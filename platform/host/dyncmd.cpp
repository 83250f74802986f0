#include "host/dyncmd.h"

IDynamicMenu::~IDynamicMenu() = default;

IDynamicMenuCommandExecutor::~IDynamicMenuCommandExecutor() = default;

dyncmd::DynamicCommandTarget::~DynamicCommandTarget() = default;
