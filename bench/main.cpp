#include "bench/comparison.h"

#include <QGuiApplication>

int main(int argc, char** argv)
{
    // Who watches a disk needs an event loop.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    velmbench::addTreeModels();
    velmbench::addListModels();
    velmbench::addTables();
    velmbench::addSheetSet();
    velmbench::addFilterTree();
    velmbench::addFilters();
    velmbench::runComparisons(argc, argv);
    return 0;
}
