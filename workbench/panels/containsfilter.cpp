#include "panels/containsfilter.h"

#include <algorithm>

namespace workbench {
ContainsFilter::ContainsFilter(std::vector<int> columns, QObject* parent)
    : RowFilter(parent), m_columns(std::move(columns))
{}

void ContainsFilter::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    Q_EMIT invalidate();
}

bool ContainsFilter::rowFilter(QAbstractItemModel* sourceModel, int sourceRow, QModelIndex parent)
{
    return m_text.isEmpty() || std::ranges::any_of(m_columns, [&](int column) {
               return sourceModel->index(sourceRow, column, parent)
                   .data()
                   .toString()
                   .contains(m_text, Qt::CaseInsensitive);
           });
}
} // namespace workbench
