#include "health/tasktraits.h"
#include "velm/services/qttasktraitssource.h"

#include <QCoreApplication>

namespace workbench {
namespace {
class EmptyLayerTraits final : public velm::dwghealth::QtTaskTraitsSource
{
    Q_DECLARE_TR_FUNCTIONS(EmptyLayerTraits)

    void initTraits() override
    {
        addTraits(std::make_shared<TaskTraits>(
            oc::dwghealth::ETaskType::EmptyLayers,
            TaskTraits::Texts{tr("Empty layers"),
                              tr("Layers that no entity is on, neither in the drawing nor in its blocks. The layer "
                                 "\"0\" and the current one are left out."),
                              tr("Fix removes them from the drawing."), QStringLiteral("layers")},
            true, false));
    }
};

EmptyLayerTraits source;
} // namespace
} // namespace workbench
