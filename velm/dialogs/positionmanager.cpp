#include "velm/dialogs/positionmanager.h"

namespace velm {
PositionManager& PositionManager::instance()
{
    static PositionManager manager;
    return manager;
}

void PositionManager::add(Positioner* positioner)
{
    m_positioners.push_back(positioner);
}

void PositionManager::remove(Positioner* positioner)
{
    std::erase(m_positioners, positioner);
}

void PositionManager::update()
{
    for (Positioner* positioner : m_positioners)
        positioner->update();
}
} // namespace velm
