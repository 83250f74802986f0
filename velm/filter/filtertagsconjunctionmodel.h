#pragma once

#include "velm/filter/filtertagdata.h"
#include "velm/velm_export.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace velm {
class AbstractFilterPropertiesModel;
class FilterTagFormatter;

/// The tags of one conjunction as chips. Pages get it from a FilterTagsModel.
class VELM_EXPORT FilterTagsConjunctionModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(const QAbstractListModel* propertiesModel READ getPropertiesModel CONSTANT)
public:
    /// The roles begin at 0 on purpose: Qt's own numbers are used anew.
    enum Role
    {
        TagStringRole = 0,
        TagTooltipRole,
        PropertyLabelTooltipRole,
        PropertyNameRole,
        PropertyIndexRole,
        OperationRole,
        OperatorsCategoryRole,
        ValueRole,
        DataRole, ///< a map of all the other roles by name
    };

    /// Both outlive the model; without a formatter tags read as DefaultTagFormatter writes them.
    FilterTagsConjunctionModel(const AbstractFilterPropertiesModel& properties, const FilterTagFormatter* formatter,
                               std::vector<FilterTagData> tags = {});
    ~FilterTagsConjunctionModel() override;

    // Each is true when something was done.

    /// Takes operator and value as they come.
    Q_INVOKABLE bool addTag(int propertyIndex, int operation, QVariant value);
    /// An operator that doesn't suit the property gives way to the first that does; a value is converted to the
    /// property's kind or gives way to its default. An invalid value stands for the present one, and then a change is
    /// signalled even if there is none.
    Q_INVOKABLE bool editTag(int tagIndex, int propertyIndex, int operation, QVariant value);
    Q_INVOKABLE bool removeTag(int tagIndex);
    Q_INVOKABLE bool clear();

    const QAbstractListModel* getPropertiesModel() const;
    const std::vector<FilterTagData>& getTags() const;
    /// Appends with the signals of an insert and no test at all.
    void append(const FilterTagData& tag);

    /// Whatever the parent.
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    bool isProperty(int propertyIndex) const;
    bool isTag(int tagIndex) const;

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
