#pragma once

#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QStringList>

#include <memory>

namespace velm {
/// The names of the saved filters.
class VELM_EXPORT FilterListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role
    {
        FilterNameRole = 0,
    };

    FilterListModel();
    ~FilterListModel() override;

    /// A reset, of the same names, too.
    void setNames(const QStringList& names);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::unique_ptr<QStringList> m_names;
};
} // namespace velm
