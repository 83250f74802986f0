#pragma once

#include "velm/velm_export.h"

#include <QAbstractItemModel>
#include <QObject>

namespace velm {
/// Decides which rows of a source a table shows.
class VELM_EXPORT RowFilter : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~RowFilter() override;

    Q_INVOKABLE virtual bool rowFilter(QAbstractItemModel* sourceModel, int sourceRow, QModelIndex parent) = 0;

Q_SIGNALS:
    /// What rowFilter() answers has changed.
    void invalidate();
};
} // namespace velm
