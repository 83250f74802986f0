#include "velm/filter/ientityfilterpropertiesmodel.h"

namespace velm {
namespace {
IEntityFilterPropertiesModel::CreateFunc createFunc;
} // namespace

IEntityFilterPropertiesModel::~IEntityFilterPropertiesModel() = default;

std::shared_ptr<IEntityFilterPropertiesModel> IEntityFilterPropertiesModel::create(const Manager& manager)
{
    // A copy, since the function may put itself out.
    const CreateFunc create = createFunc;
    return create ? create(manager) : nullptr;
}

void IEntityFilterPropertiesModel::setCreateFunc(const CreateFunc& func)
{
    if (!func || !createFunc)
        createFunc = func;
}
} // namespace velm
