#pragma once

#include "host/oc.h"

class OdApDocManager;

namespace workbench {
/// What a filter of entities tests on: the drawings that are open.
class EntityFilterFactories : public oc::PropertyFilterFactoriesManager
{
public:
    /// The documents outlive the object.
    explicit EntityFilterFactories(OdApDocManager& documents) : m_documents(documents) {}

    OdApDocManager& documents() const { return m_documents; }

private:
    OdApDocManager& m_documents;
};
} // namespace workbench
