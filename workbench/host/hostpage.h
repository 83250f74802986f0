#pragma once

#include "velm/bridge/iqtcontroller.h"

namespace workbench {
/// An IQtController without the operations that only other hosts have a use for.
class HostPage : public velm::IQtController
{
public:
    void hostOperation1() override {}
    void hostOperation2() override {}
    void hostOperation3() override {}
    void hostOperation4() override {}
    void hostOperation5() override {}
    void hostOperation6() override {}
    void hostOperation7() override {}
    void hostOperation8() override {}
    void hostOperation9() override {}
    void hostOperation10() override {}
    void hostOperation11() override {}
    void hostOperation12() override {}
    void hostOperation13() override {}
    void getInterfaces(std::vector<velm::IQtControllerInterface*>&) const override {}
};
} // namespace workbench
