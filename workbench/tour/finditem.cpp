#include "tour/finditem.h"

#include "velm/table/columns.h"

#include <QAbstractItemModel>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVariant>

namespace workbench {
QRectF visiblePart(const QQuickItem& item)
{
    QRectF part = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    for (const QQuickItem* outer = item.parentItem(); outer; outer = outer->parentItem())
        if (outer->clip())
            part &= outer->mapRectToScene(QRectF(0, 0, outer->width(), outer->height()));
    return part & QRectF(QPointF(), item.window()->size());
}

QQuickItem* findBelow(QQuickItem* item, const QString& name, QQuickItem*& hidden)
{
    if (!item || !item->isVisible())
        return nullptr;
    if (item->objectName() == name) {
        if (!visiblePart(*item).isEmpty())
            return item;
        if (!hidden)
            hidden = item;
    }
    // Rows of a list are children of the view only, not of the page's objects.
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = findBelow(child, name, hidden))
            return found;
    return nullptr;
}

QQuickItem* findCell(QQuickItem* item, const QAbstractItemModel& model, const QString& row, const QString& columnId)
{
    if (!item || !item->isVisible())
        return nullptr;
    const QVariant itsRow = item->property("row");
    const QVariant itsColumn = item->property("column");
    if (itsRow.isValid() && itsColumn.isValid() && model.index(itsRow.toInt(), 0).data().toString() == row &&
        model.headerData(itsColumn.toInt(), Qt::Horizontal, velm::ColumnIdRole) == columnId)
        return item;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = findCell(child, model, row, columnId))
            return found;
    return nullptr;
}
} // namespace workbench
