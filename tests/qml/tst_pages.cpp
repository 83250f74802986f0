#include "velm/bridge/engine.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"
int main() { return 0; }
