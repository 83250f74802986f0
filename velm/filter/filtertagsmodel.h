#pragma once

#include "velm/filter/filtertagdata.h"
#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QVariantMap>

#include <memory>
#include <vector>

namespace velm {
class AbstractFilterPropertiesModel;
class FilterTagFormatter;
class FilterTagsConjunctionModel;

/// A filter that is being edited: its conjunctions, of which there always is at least one. It holds and describes the
/// filter and doesn't evaluate it. Slots ignore bad indexes.
class VELM_EXPORT FilterTagsModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role
    {
        ConjunctionModelRole = 0, ///< FilterTagsConjunctionModel*, owned here; it dies with its row
    };

    /// Both outlive the model; the formatter may be null.
    FilterTagsModel(const AbstractFilterPropertiesModel& properties, const FilterTagFormatter* formatter);
    ~FilterTagsModel() override;

    /// Where a tag goes that names no conjunction: 0.
    Q_INVOKABLE int getDefaultConjunctionIndex();
    std::vector<std::vector<FilterTagData>> getFilter() const;
    /// Nothing for the present filter, and for one with a property that isn't there: the caller maps it first. The
    /// property -1, which an edit refuses, is taken.
    void setFilter(const std::vector<std::vector<FilterTagData>>& filter);

    /// Whatever the parent.
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

public Q_SLOTS:
    void addConjunction();
    /// The only conjunction is emptied instead, and if it held tags the signal comes twice. This must stay.
    void removeConjunction(int conjunctionIndex);
    /// Puts the copy behind the original. What is connected for it is the last conjunction, whichever that is, so the
    /// edits of a copy in the middle stay silent and those of the last one are told twice. This must stay.
    void duplicateConjunction(int conjunctionIndex);
    void addTag(int conjunctionIndex, int propertyIndex, int operation, QVariant value);
    void editTag(int conjunctionIndex, int tagIndex, int propertyIndex, int operation, QVariant value);
    void removeTag(int conjunctionIndex, int tagIndex);
    void removeTags(int conjunctionIndex);
    /// Leaves one empty conjunction. If the first was empty before, filtersChanged() isn't emitted. This must stay.
    void clear();
    /// All roles of a tag by name, "data" left out; invalid values for a tag that isn't there.
    QVariantMap get(int conjunctionIndex, int tagIndex);

Q_SIGNALS:
    void filtersChanged();

private:
    bool isConjunction(int index) const;
    FilterTagsConjunctionModel& conjunction(int index) const;
    std::unique_ptr<FilterTagsConjunctionModel> makeConjunction(std::vector<FilterTagData> tags = {}) const;
    void connectConjunction(const FilterTagsConjunctionModel& conjunction);

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
