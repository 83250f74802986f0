#pragma once

#include "velm/velm_export.h"

#include <QObject>

namespace velm {
/// The logic of a popup.
class VELM_EXPORT BasePopupController : public QObject
{
    Q_OBJECT
public:
    BasePopupController();
    ~BasePopupController() override;

Q_SIGNALS:
    void closed();
};
} // namespace velm
