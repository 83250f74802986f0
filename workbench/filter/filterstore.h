#pragma once

#include "filter/filterfolder.h"
#include "velm/filter/ifiltermanagerfileio.h"

namespace workbench {
/// Keeps filters as JSON files, see FilterFolder. Properties stand in them by identity, so a filter means the same in
/// another drawing. An operation that fails tells so, and leaves the files as they were.
class FilterStore : public velm::IFilterManagerFileIO
{
public:
    /// The folder is made at the first save. `tell` shows a message to the user; it is also called once for each file
    /// that can't be read, later than the call that saw it.
    FilterStore(QString folder, std::function<void(const QString& message)> tell);

    QStringList getFilterList() const override;
    void save(const velm::FilterData& filter, const velm::IEntityFilterPropertiesModel& properties,
              const QString& name) override;
    std::optional<velm::FilterData> load(const QString& name, const velm::IEntityFilterPropertiesModel& properties,
                                         QStringList& missingProperties, OdString& requiredVersion) override;
    /// Refused when there is a filter of the new name.
    void rename(const QString& oldName, const QString& newName) override;
    /// Refused when there is a filter of the new name.
    void duplicate(const QString& name, const QString& newName) override;
    void remove(const QString& name) override;
    /// The handle may outlive the store.
    std::shared_ptr<void> addFiltersChangedListener(std::function<void()> listener) override;

private:
    bool copy(const QString& name, const QString& newName);

    mutable FilterFolder m_folder; // listing the filters looks at the disk
};
} // namespace workbench
