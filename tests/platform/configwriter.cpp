#include "ut/config.h"

#include <cstdio>
#include <cstdlib>
#include <string>

/// configwriter NAME COUNT: writes COUNT entries "NAME/<number>" and counts "NAME/last" along; prints each number once
/// its entries are written.
int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    const std::string name = argv[1];
    const long end = 1000 + std::atol(argv[2]);
    // All numbers have four digits, so that overwriting "last" doesn't change the file's size.
    for (long number = 1000; number < end; ++number) {
        const std::string key = name + '/' + std::to_string(number);
        if (!ut::Config::writeLong(ut::ECfgGroup::Dialogs, key.c_str(), number) ||
            !ut::Config::writeLong(ut::ECfgGroup::Dialogs, (name + "/last").c_str(), number))
            return 1;
        std::printf("%ld\n", number);
        std::fflush(stdout);
    }
    return 0;
}
