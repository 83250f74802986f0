#pragma once

#include "velm/velm_export.h"

#include <QModelIndex>
#include <QObject>

namespace velm {
/// An order of rows in place of the columns' own.
class VELM_EXPORT Sorter : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~Sorter() override;

    /// Both are indexes of the source, in the column that is sorted by.
    virtual bool lessThan(const QModelIndex& left, const QModelIndex& right) const = 0;
};
} // namespace velm
