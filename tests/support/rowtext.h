#pragma once

#include <QAbstractItemModel>

namespace velmtest {
/// The rows below an index as one short text, children in brackets: "A(a1 a2) B". An empty text reads as "-".
inline QString rowText(const QAbstractItemModel& model, int role = Qt::DisplayRole, const QModelIndex& parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString text = index.data(role).toString();
        // A list may count its rows whatever the parent.
        const QString below = model.hasChildren(index) ? rowText(model, role, index) : QString();
        rows += (text.isEmpty() ? QStringLiteral("-") : text) +
                (below.isEmpty() ? QString() : QLatin1Char('(') + below + QLatin1Char(')'));
    }
    return rows.join(QLatin1Char(' '));
}
} // namespace velmtest
