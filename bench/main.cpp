#include "bench/comparison.h"

int main(int argc, char** argv)
{
    velmbench::addTreeModels();
    velmbench::addListModels();
    velmbench::addTables();
    velmbench::runComparisons(argc, argv);
    return 0;
}
