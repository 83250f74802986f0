#pragma once

#include "host/oc.h"
#include "ut/smartptr.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"

#include <functional>
#include <memory>

namespace velm {
/// The properties of drawing entities, as the host plugs them in.
class VELM_EXPORT IEntityFilterPropertiesModel : public AbstractFilterPropertiesModel
{
    Q_OBJECT
public:
    using Manager = TnSmartPtr<oc::PropertyFilterFactoriesManager>;
    using CreateFunc = std::function<std::shared_ptr<IEntityFilterPropertiesModel>(const Manager&)>;

    using AbstractFilterPropertiesModel::AbstractFilterPropertiesModel;
    ~IEntityFilterPropertiesModel() override;

    virtual oc::PropertyFilterFactoriesManager* getPropertyFilterFactoriesManager() const = 0;
    // The host's own; the library calls none of them.
    virtual void hostFilterAction1() = 0;
    virtual void hostFilterAction2() = 0;
    virtual void hostFilterAction3() = 0;
    virtual void hostFilterAction4() = 0;

    /// Empty while no function is stored.
    static std::shared_ptr<IEntityFilterPropertiesModel> create(const Manager& manager);
    /// The first function wins until an empty one clears it.
    static void setCreateFunc(const CreateFunc& func);
};
} // namespace velm
