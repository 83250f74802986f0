#pragma once

#include "od/odarray.h"
#include "od/odstring.h"
#include "ut/uuid.h"
#include "velm/filter/componenturlwithsettings.h"
#include "velm/filter/valuetypes.h"

#include <QAbstractListModel>
#include <QVariantMap>

#include <memory>
#include <vector>

namespace velm {
class IColorModel;
class ILineWeightModel;

/// The properties that a filter may test: names, places in a hierarchy, kinds of values and their editors. A concrete
/// model knows the properties and guards its rows; what follows from the kind of the values stands here. The order of
/// the virtual operations is part of the interface. `index` is always the row of a property.
class VELM_EXPORT AbstractFilterPropertiesModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(bool isHierarchical READ isHierarchical CONSTANT)
    Q_PROPERTY(bool hasPipet READ hasPipet CONSTANT)
public:
    enum Role
    {
        NameRole = Qt::UserRole + 1,
        FullPathNameRole,
        TypeRole,
        ValuesRole,
        ValueModelRole,
        ComponentUrlRole,
        UnitRole,
    };

    explicit AbstractFilterPropertiesModel(QObject* parent = nullptr);
    ~AbstractFilterPropertiesModel() override;

    /// getNrProperties().
    int rowCount(const QModelIndex& parent = {}) const override;
    /// The row isn't tested.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    virtual int getNrProperties() const = 0;
    /// The texts of a choice; "false" and "true" for a boolean.
    Q_INVOKABLE virtual QStringList getValues(int index) const;
    /// The model behind the values of colours and lineweights, invalid for every other kind.
    Q_INVOKABLE QVariant getModel(int index) const;
    Q_INVOKABLE virtual QString getName(int index) const = 0;
    /// A key of filter::EDefaultValueType.
    Q_INVOKABLE virtual QString getValueType(int index) const = 0;
    virtual FilterOperatorsModel::CategoryType getOperatorCategoryType(int index) const;
    Q_INVOKABLE virtual velm::FilterOperatorsModel::Operator getDefaultOperation(int index) const;
    Q_INVOKABLE virtual QVariant getDefaultValue(int index) const;
    Q_INVOKABLE virtual QString getUnit(int index) const;
    Q_INVOKABLE velm::ComponentUrlWithSettings getComponentUrl(int index) const;
    /// The names of the groups above the property.
    virtual QStringList getPath(int index) const;
    Q_INVOKABLE virtual QString getFullPathName(int index, bool withUnit) const;
    /// A lasting identity, in the form of a ut::UUID.
    virtual OdString getRegistryId(int index) const;
    /// Where the favourites of this kind of model are kept; empty to keep none.
    virtual OdString getRegistrySubCategory() const;
    virtual bool isHierarchical() const;
    /// -1 when there is none.
    virtual int getIndexByGuid(const ut::UUID& guid) const;
    /// The favourites of a user who has never chosen any.
    virtual std::vector<ut::UUID> getInitialPinnedProperties() const;
    /// -1 when there is none.
    virtual int getIndexByGuidAndPath(const ut::UUID& guid, const OdArray<OdString>& path) const;
    /// A tag's value in words. Several values are joined with line breaks (tags of HTML when styled), or stand as one
    /// word for "several" when not multiline. Empty for a value of a wrong kind.
    Q_INVOKABLE virtual QString valueToString(int propertyIndex, const QVariant& value, bool multiline = false,
                                              bool styledText = false) const;
    /// Whether a value can be picked from the drawing at all.
    virtual bool hasPipet() const;
    Q_INVOKABLE virtual bool pipetEnabled() const;
    /// "success" and "value".
    Q_INVOKABLE virtual QVariantMap pipet(int index);

    // Null without a host.
    IColorModel* getColorModel();
    const IColorModel* getColorModel() const;
    ILineWeightModel* getLineWeightModel();
    const ILineWeightModel* getLineWeightModel() const;

public Q_SLOTS:
    /// All roles of a property by name.
    QVariantMap get(int propertyIndex) const;
    /// One of the property's values; empty for one that isn't there.
    QString get(int propertyIndex, int valueIndex) const;
    // 0, not -1, when nothing matches. This must stay.
    int indexOf(QString name) const;
    int indexOf(int propertyIndex, QString value) const;

protected:
    /// The editor of a kind of its own, or another one of a kind there is; empty for the library's.
    virtual ComponentUrlWithSettings getCustomComponentUrl(QString type) const;

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
