#include "health/tasktraits.h"
#include "velm/services/qttasktraitssource.h"

#include <QCoreApplication>

namespace workbench {
namespace {
class ZeroLengthLineTraits final : public velm::dwghealth::QtTaskTraitsSource
{
    Q_DECLARE_TR_FUNCTIONS(ZeroLengthLineTraits)

    void initTraits() override
    {
        addTraits(std::make_shared<TaskTraits>(
            oc::dwghealth::ETaskType::ZeroLengthLines,
            TaskTraits::Texts{tr("Zero-length lines"),
                              tr("Lines that end where they begin. They can't be seen, and stand in the way of "
                                 "whatever follows outlines."),
                              tr("Select shows where they are; Fix erases them."), QStringLiteral("line")},
            true, true));
    }
};

ZeroLengthLineTraits source;
} // namespace
} // namespace workbench
