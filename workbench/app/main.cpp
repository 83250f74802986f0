#include "app/workbenchapp.h"

int main(int argc, char** argv)
{
    return workbench::run(argc, argv);
}
