#include "panels/entityfilter.h"

#include "panels/entitytablemodel.h"

namespace workbench {
void EntityFilter::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    forget();
    Q_EMIT invalidate();
}

bool EntityFilter::matches(int text)
{
    const auto place = static_cast<std::size_t>(text);
    if (place >= m_known.size())
        m_known.resize(place + 1, Match::Unknown);
    if (m_known[place] == Match::Unknown)
        m_known[place] = m_model.texts().value(text).contains(m_text, Qt::CaseInsensitive) ? Match::Yes : Match::No;
    return m_known[place] == Match::Yes;
}

bool EntityFilter::rowFilter(QAbstractItemModel*, int sourceRow, QModelIndex)
{
    return m_text.isEmpty() || m_model.hasText(sourceRow, [this](int text) { return matches(text); });
}
} // namespace workbench
