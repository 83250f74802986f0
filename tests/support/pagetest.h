#pragma once

#include "velm/bridge/engine.h"

#include <QApplication>
#include <QTest>

namespace velmtest {
/// The main() of a test of pages.
template <typename Test>
int runPageTest(int argc, char** argv)
{
    // The environment of a developer has no say, but the platform of the test has.
    qputenv("TN_QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM"));
    velm::undefineQtEnvVars();
    QApplication application(argc, argv);
    velm::setDefaultLocale();
    Test test;
    return QTest::qExec(&test, argc, argv);
}
} // namespace velmtest

#define PAGE_TEST_MAIN(Test)                                                                                           \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        return velmtest::runPageTest<Test>(argc, argv);                                                                \
    }
