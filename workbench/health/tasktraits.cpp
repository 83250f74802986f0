#include "health/tasktraits.h"

#include <utility>

namespace workbench {
TaskTraits::TaskTraits(oc::dwghealth::ETaskType type, Texts texts, bool isEnabled, bool isSelectable)
    : m_type(type), m_texts(std::move(texts)), m_isEnabled(isEnabled), m_isSelectable(isSelectable)
{}
} // namespace workbench
