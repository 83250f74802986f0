#include "velm/filter/searchstringfilter.h"

#include <QRegularExpression>

namespace velm {
namespace {
/// The terms that the row's own name doesn't hold. A term has no blanks, so one that stands in the names of a path,
/// with blanks between them, stands in one of the names.
QStringList termsLeft(const QModelIndex& index, const QStringList& terms)
{
    const QString name = index.data(Qt::DisplayRole).toString().trimmed();
    QStringList left;
    for (const QString& term : terms)
        if (!name.contains(term, Qt::CaseInsensitive))
            left.append(term);
    return left;
}

/// Whether the row, or a leaf below it, holds the terms that the groups above don't.
bool holds(const QAbstractItemModel& model, const QModelIndex& index, const QStringList& terms)
{
    const QStringList left = termsLeft(index, terms);
    if (left.isEmpty())
        return true;
    const int children = model.rowCount(index);
    for (int row = 0; row < children; ++row)
        if (holds(model, model.index(row, 0, index), left))
            return true;
    return false;
}
} // namespace

SearchStringFilter::~SearchStringFilter() = default;

void SearchStringFilter::setSearchString(const QString& text)
{
    if (m_searchString == text)
        return;
    static const QRegularExpression whiteSpace(QStringLiteral("\\s+"));
    m_searchString = text;
    m_searchTerms = text.split(whiteSpace, Qt::SkipEmptyParts);
    Q_EMIT invalidate();
}

bool SearchStringFilter::rowFilter(QAbstractItemModel* sourceModel, int sourceRow, QModelIndex parent)
{
    QStringList terms = m_searchTerms;
    for (QModelIndex group = parent; group.isValid() && !terms.isEmpty(); group = group.parent())
        terms = termsLeft(group, terms);
    return terms.isEmpty() || holds(*sourceModel, sourceModel->index(sourceRow, 0, parent), terms);
}
} // namespace velm
