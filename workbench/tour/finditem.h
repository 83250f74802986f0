#pragma once

#include <QRectF>
#include <QString>

class QAbstractItemModel;
class QQuickItem;

namespace workbench {
/// What is seen of an item in its window.
QRectF visiblePart(const QQuickItem& item);

/// The visible item of this object name, which may be `item` itself, or null. One that is scrolled out of sight goes to
/// `hidden`, unless there is one already.
QQuickItem* findBelow(QQuickItem* item, const QString& name, QQuickItem*& hidden);

/// The cell of a table that shows the model, or null: cells have no names of their own. The row is named by what it
/// shows in the first column.
QQuickItem* findCell(QQuickItem* item, const QAbstractItemModel& model, const QString& row, const QString& columnId);
} // namespace workbench
