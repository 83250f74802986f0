#pragma once

#include "velm/velm_export.h"

#include <vector>

namespace velm {
/// Something that computes its place anew when the host's windows move. Nobody deletes one through this class.
class VELM_EXPORT Positioner
{
public:
    virtual void update() = 0;

protected:
    ~Positioner() = default;
};

/// All positioners of the program. A positioner must be removed before it dies; none may come or go during update().
class VELM_EXPORT PositionManager
{
public:
    static PositionManager& instance();

    /// One that is added twice is updated twice.
    void add(Positioner* positioner);
    /// Every occurrence.
    void remove(Positioner* positioner);
    /// In the order in which they were added.
    void update();

private:
    PositionManager() = default;

    std::vector<Positioner*> m_positioners; // not owned
};
} // namespace velm
