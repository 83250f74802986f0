#pragma once

#include "panels/partsmodel.h"
#include "panels/timedtable.h"

#include <QElapsedTimer>
#include <QTimer>

namespace workbench {
/// What the page of a million rows talks to: the table, a search in it, and its filling, which takes a few milliseconds
/// of the program's time at once.
class PartsController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(velm::SortFilterSelectModel* table READ table CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(bool filling READ isFilling NOTIFY progressChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString rowsText READ rowsText NOTIFY rowsTextChanged)
    Q_PROPERTY(QString timeText READ timeText NOTIFY timeTextChanged)
public:
    explicit PartsController(int wantedRows = 1'000'000);
    ~PartsController() override;

    TimedTable* table() { return &m_table; }
    PartsModel* parts() { return &m_parts; }
    QString searchText() const;
    /// Shows only parts whose names contain the text, without regard to case; an empty text shows all.
    void setSearchText(const QString& text);
    bool isFilling() const { return m_turn.isActive(); }
    /// From 0 to 1, of the rows that a filling brings.
    double progress() const { return static_cast<double>(m_parts.rowCount()) / m_wantedRows; }
    /// How many rows there are and are shown.
    QString rowsText() const;
    /// How long the last filling or sorting took.
    QString timeText() const { return m_timeText; }

public Q_SLOTS:
    /// Begins anew with no rows.
    void fill();
    /// Ends the filling; what is there stays.
    void stop();

Q_SIGNALS:
    void searchTextChanged();
    void progressChanged();
    void rowsTextChanged();
    void timeTextChanged();

private:
    class Filter;

    void addRows();
    void setTimeText(const QString& what, qint64 milliseconds);

    const int m_wantedRows;
    PartsModel m_parts;
    std::unique_ptr<Filter> m_filter;
    TimedTable m_table;
    QTimer m_turn;
    QElapsedTimer m_filled;
    QString m_timeText;
};
} // namespace workbench
