#include "velm/bridge/iqtcontroller.h"

namespace velm {
namespace {
template <typename T>
T* firstOf(const IQtController& controller)
{
    std::vector<IQtControllerInterface*> interfaces;
    controller.getInterfaces(interfaces);
    for (IQtControllerInterface* interface : interfaces)
        if (T* wanted = dynamic_cast<T*>(interface))
            return wanted;
    return nullptr;
}
} // namespace

IQtControllerInterface::~IQtControllerInterface() = default;
ISheetSetPanel::~ISheetSetPanel() = default;
ILookFrom::~ILookFrom() = default;
ITopLevelWindowController::~ITopLevelWindowController() = default;
IQtController::~IQtController() = default;

void IQtController::setAcceleratorTable(const wxAcceleratorTable&)
{}

ISheetSetPanel* IQtController::getISheetSetPanel() const
{
    return firstOf<ISheetSetPanel>(*this);
}

ILookFrom* IQtController::getLookFrom() const
{
    return firstOf<ILookFrom>(*this);
}
} // namespace velm
