#pragma once

#include "velm/services/iqttasktraits.h"

#include <memory>
#include <set>

namespace velm::dwghealth {
/// Registers traits for as long as it lives; a library has one static source. It is asked for its traits at the first
/// request after the registry was empty.
class VELM_EXPORT QtTaskTraitsSource
{
public:
    QtTaskTraitsSource();
    // A copy holds the same kinds but isn't asked for them.
    QtTaskTraitsSource(const QtTaskTraitsSource&);
    QtTaskTraitsSource& operator=(const QtTaskTraitsSource&);
    /// Takes away the traits of all kinds that it added, even if another source was the first to add them. This must
    /// stay.
    virtual ~QtTaskTraitsSource();

    /// Calls addTraits() for each kind that it knows.
    virtual void initTraits() = 0;

protected:
    /// The first registration of a kind wins. Null is ignored.
    void addTraits(std::shared_ptr<IQtTaskTraits> traits);

private:
    std::set<oc::dwghealth::ETaskType> m_types;
};
} // namespace velm::dwghealth
