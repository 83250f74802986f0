#pragma once

#include "velm/table/rowfilter.h"

#include <QStringList>

namespace velm {
/// Keeps the properties whose names, together with those of the groups above them, hold every term of a search, and the
/// groups that still have such a property. Without terms it keeps all.
class SearchStringFilter : public RowFilter
{
    Q_OBJECT
public:
    using RowFilter::RowFilter;
    ~SearchStringFilter() override;

    QString searchString() const { return m_searchString; }
    /// Terms are parted by white space, and case doesn't count. Nothing for the present text.
    void setSearchString(const QString& text);

    bool rowFilter(QAbstractItemModel* sourceModel, int sourceRow, QModelIndex parent) override;

private:
    QString m_searchString;
    QStringList m_searchTerms;
};
} // namespace velm
