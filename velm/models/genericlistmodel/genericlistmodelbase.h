#pragma once

#include "velm/velm_export.h"

#include <QAbstractListModel>

namespace velm {
/// What a GenericListModel has without knowing its rows.
class VELM_EXPORT GenericListModelBase : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;
    ~GenericListModelBase() override;

protected:
    /// Whether moving the rows first to last before the row dest changes a list of so many rows.
    static bool isMove(int first, int last, int dest, int size);
};
} // namespace velm
