#pragma once

#include "host/oc.h"
#include "od/odstring.h"
#include "velm/filter/filtertagdata.h"
#include "velm/velm_export.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace velm {
class IEntityFilterPropertiesModel;

/// The host's store of named filters. It writes properties by a lasting identity, since their rows mean something only
/// together with the given model. The order of the operations is part of the interface.
class VELM_EXPORT IFilterManagerFileIO
{
public:
    using CreateFileIOFunc =
        std::function<std::unique_ptr<IFilterManagerFileIO>(const oc::PropertyFilterFactoriesManager&)>;

    virtual ~IFilterManagerFileIO();

    /// In the order of display.
    virtual QStringList getFilterList() const = 0;
    /// Replaces a filter of that name without asking.
    virtual void save(const std::vector<std::vector<FilterTagData>>& filter,
                      const IEntityFilterPropertiesModel& properties, const QString& name) = 0;
    /// The filter on rows of `properties`. Tags of properties that aren't there are left out, and a display name of
    /// each goes into `missingProperties`. Empty when it can't be read: because it was written by a newer version,
    /// which is then told in `requiredVersion`, or for any other reason.
    virtual std::optional<std::vector<std::vector<FilterTagData>>> load(const QString& name,
                                                                        const IEntityFilterPropertiesModel& properties,
                                                                        QStringList& missingProperties,
                                                                        OdString& requiredVersion) = 0;
    virtual void rename(const QString& oldName, const QString& newName) = 0;
    virtual void duplicate(const QString& name, const QString& newName) = 0;
    virtual void remove(const QString& name) = 0;
    /// Calls the listener, on the GUI thread, whenever the set of saved filters changes, for the life of the handle.
    virtual std::shared_ptr<void> addFiltersChangedListener(std::function<void()> listener) = 0;

    /// The first function wins until an empty one clears it.
    static void setCreateFileIOFunc(const CreateFileIOFunc& func);
    /// The stored function, maybe empty.
    static const CreateFileIOFunc& createFileIOFunc();

protected:
    IFilterManagerFileIO() = default;
    IFilterManagerFileIO(const IFilterManagerFileIO&) = default;
    IFilterManagerFileIO& operator=(const IFilterManagerFileIO&) = default;
};
} // namespace velm
