#pragma once

#include "host/dwghealth.h"
#include "velm/velm_export.h"

#include <QString>

#include <memory>

namespace velm::dwghealth {
/// What pages show of one kind of task of the host's drawing health. The order of the operations is part of the
/// interface; what the texts, flags and objects mean is up to those who register and ask.
class VELM_EXPORT IQtTaskTraits
{
public:
    virtual oc::dwghealth::ETaskType taskType() const = 0;
    virtual QString traitText1() const = 0;
    virtual QString traitText2() const = 0;
    virtual QString traitText3() const = 0;
    virtual QString traitText4() const = 0;
    virtual bool traitFlag1() const = 0;
    virtual std::shared_ptr<void> traitObject1() const = 0;
    virtual std::shared_ptr<void> traitObject2(std::shared_ptr<void> argument) const = 0;
    virtual bool traitFlag2() const = 0;

protected:
    /// Not virtual: whoever registers an object holds it by a pointer that knows its class.
    ~IQtTaskTraits() = default;
};

/// The traits of a kind of task; empty ones, of kind -1, where nobody has registered any.
VELM_EXPORT const IQtTaskTraits& getQtTaskTraits(oc::dwghealth::ETaskType type);
} // namespace velm::dwghealth
