#pragma once

#include "velm/table/rowfilter.h"

#include <QString>

#include <vector>

namespace workbench {
class EntityTableModel;

/// Lets those entities through of which a text contains what is searched for, without regard to case.
class EntityFilter : public velm::RowFilter
{
public:
    /// The model outlives the filter, and is the only one that it filters.
    explicit EntityFilter(const EntityTableModel& model) : m_model(model) {}

    /// An empty text lets all through.
    void setText(const QString& text);
    const QString& text() const { return m_text; }
    /// To call when the model is reset: its texts have other numbers then.
    void forget() { m_known.clear(); }

    bool rowFilter(QAbstractItemModel* sourceModel, int sourceRow, QModelIndex parent) override;

private:
    enum class Match : char
    {
        Unknown,
        No,
        Yes
    };

    bool matches(int text);

    const EntityTableModel& m_model;
    QString m_text;
    std::vector<Match> m_known; // by the number of a text: many rows have the same few
};
} // namespace workbench
