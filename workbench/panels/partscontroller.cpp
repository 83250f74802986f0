#include "panels/partscontroller.h"

#include <QLocale>

namespace workbench {
namespace {
constexpr int rowsAtOnce = 10'000;
constexpr int pause = 2; // milliseconds, in which the window paints and takes clicks
} // namespace

class PartsController::Filter : public velm::RowFilter
{
public:
    explicit Filter(const PartsModel& parts) : m_parts(parts) {}

    bool rowFilter(QAbstractItemModel*, int sourceRow, QModelIndex) override
    {
        return text.isEmpty() || m_parts.name(sourceRow).contains(text, Qt::CaseInsensitive);
    }

    QString text;

private:
    const PartsModel& m_parts;
};

PartsController::PartsController(int wantedRows) : m_wantedRows(wantedRows), m_filter(std::make_unique<Filter>(m_parts))
{
    m_table.setSortRole(Qt::EditRole);
    m_table.setParentId(QStringLiteral("Workbench/Parts"));
    m_table.setFilter(m_filter.get());
    m_table.setSourceModel(&m_parts);
    m_turn.setSingleShot(true);
    m_turn.setInterval(pause);
    connect(&m_turn, &QTimer::timeout, this, &PartsController::addRows);
    connect(&m_table, &TimedTable::sorted, this, [this](qint64 milliseconds) {
        const int column = m_table.proxySortColumn();
        setTimeText(tr("Sorted by %1").arg(m_table.headerData(column, Qt::Horizontal).toString()), milliseconds);
    });
}

PartsController::~PartsController() = default;

void PartsController::setTimeText(const QString& what, qint64 milliseconds)
{
    m_timeText = tr("%1 in %2 s").arg(what, QLocale().toString(static_cast<double>(milliseconds) / 1000.0, 'f', 2));
    Q_EMIT timeTextChanged();
}

QString PartsController::searchText() const
{
    return m_filter->text;
}

void PartsController::setSearchText(const QString& text)
{
    if (text == m_filter->text)
        return;
    m_filter->text = text;
    Q_EMIT m_filter->invalidate();
    Q_EMIT searchTextChanged();
    Q_EMIT rowsTextChanged();
}

QString PartsController::rowsText() const
{
    const QString all = QLocale().toString(m_parts.rowCount());
    return m_filter->text.isEmpty() ? tr("%1 rows").arg(all)
                                    : tr("%1 of %2 rows").arg(QLocale().toString(m_table.rowCount()), all);
}

void PartsController::fill()
{
    // A reset loses the order of the columns.
    m_table.saveColumnData();
    m_parts.clear();
    m_table.loadColumnData();
    m_filled.start();
    m_turn.start();
    Q_EMIT progressChanged();
    Q_EMIT rowsTextChanged();
}

void PartsController::stop()
{
    if (!isFilling())
        return;
    m_turn.stop();
    Q_EMIT progressChanged();
}

void PartsController::addRows()
{
    m_parts.append(std::min(rowsAtOnce, m_wantedRows - m_parts.rowCount()));
    if (m_parts.rowCount() < m_wantedRows)
        m_turn.start();
    else
        setTimeText(tr("Filled"), m_filled.elapsed());
    Q_EMIT progressChanged();
    Q_EMIT rowsTextChanged();
}
} // namespace workbench
