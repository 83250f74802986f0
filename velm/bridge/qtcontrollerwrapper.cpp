#include "velm/bridge/qtcontrollerwrapper.h"

#include "velm/bridge/iqtcontroller.h"

namespace velm {
struct QtControllerWrapper::Pimpl
{
    IQtController* controller; // not owned
};

QtControllerWrapper::QtControllerWrapper(IQtController* controller) : m_pimpl(new Pimpl{controller})
{}

QtControllerWrapper::~QtControllerWrapper() = default;

IQtController* QtControllerWrapper::getController() const
{
    return m_pimpl->controller;
}

QObject* QtControllerWrapper::findInTransientPopups(QString objectName)
{
    return m_pimpl->controller->findInTransientPopups(objectName);
}
} // namespace velm
