#pragma once

#include "velm/velm_export.h"

#include <QObject>

#include <memory>

namespace velm {
class IQtController;

/// The form in which QML sees an IQtController.
class VELM_EXPORT QtControllerWrapper : public QObject
{
    Q_OBJECT
public:
    /// The controller is not owned and must live as long as the wrapper.
    explicit QtControllerWrapper(IQtController* controller);
    ~QtControllerWrapper() override;

    IQtController* getController() const;

public Q_SLOTS:
    QObject* findInTransientPopups(QString objectName);

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
