#pragma once

#include "velm/velm_export.h"

#include <QSortFilterProxyModel>

#include <optional>

namespace velm {
/// A sorted and filtered list, for pages that need no more: sorted by a column, or by a role that is given by its name.
class VELM_EXPORT SortFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(int sortColumn READ sortColumn WRITE setSortColumn NOTIFY sortColumnChanged)
    Q_PROPERTY(bool ascending READ ascending WRITE setAscending NOTIFY ascendingChanged)
    Q_PROPERTY(QString sortRoleName READ sortRoleName WRITE setSortRoleName NOTIFY sortRoleNameChanged)
public:
    explicit SortFilterModel(QObject* parent = nullptr);

Q_SIGNALS:
    void sortColumnChanged(int sortColumn);
    void ascendingChanged(bool ascending);
    void sortRoleNameChanged(QString sortRole);

public Q_SLOTS:
    /// -1 for a row that isn't there, both ways; top-level rows only.
    int mapRowToSource(int proxyRow) const;
    int mapRowFromSource(int sourceRow) const;
    void setSortColumn(int col);
    void setAscending(bool isAscending);
    /// Before a source is set, the name is kept for then. A name that the source doesn't have changes nothing.
    void setSortRoleName(QString role);
    bool ascending() const;
    QString sortRoleName() const;

private:
    std::optional<QString> m_pendingSortRoleName;
};
} // namespace velm
