#pragma once

#include "od/odstring.h"
#include "velm/models/genericlistmodel/genericlistmodel.h"

#include <memory>

namespace velm {
class AbstractFilterPropertiesModel;

/// A favourite among the properties.
struct PinnedPropertyItem
{
    int propertyIndex = -1; ///< for the present property model only
    QString name;           ///< with its unit
    QString tooltip;
    OdString registryId; ///< the lasting identity

    friend bool operator==(const PinnedPropertyItem&, const PinnedPropertyItem&) = default;
};

extern template class VELM_EXPORT GenericListModel<PinnedPropertyItem>;

/// The favourites in the order in which they were chosen, kept in the host's configuration by their lasting identities.
/// Identities that the present property model doesn't know are kept behind the others.
class VELM_EXPORT PinnedPropertiesModel : public GenericListModel<PinnedPropertyItem>
{
    Q_OBJECT
public:
    enum Role
    {
        NameRole = Qt::UserRole,
        PropertyIndexRole,
        TooltipRole,
    };

    PinnedPropertiesModel();
    ~PinnedPropertiesModel() override;

    const AbstractFilterPropertiesModel* getProperties() const;
    /// Begins anew without rows; nothing for the present model. Without a sub-category of the model's own the
    /// favourites stay under the former key, or in memory alone if there was none.
    void setProperties(const AbstractFilterPropertiesModel& properties);

    Q_INVOKABLE bool isPinned(int propertyIndex) const;
    /// Nothing for a property that is pinned, has no name or isn't there.
    Q_INVOKABLE void pinProperty(int propertyIndex, bool save = true);
    Q_INVOKABLE void unpinProperty(int propertyIndex);
    Q_INVOKABLE void togglePinned(int propertyIndex);
    /// Adds the saved favourites or, when none were ever saved, those that the property model begins with.
    Q_INVOKABLE void loadPinnedProperties();

    using GenericListModel::data;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void pinStateChanged(int propertyIndex);

private:
    void save() const;

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
