#pragma once

#include "velm/models/genericlistmodel/genericlistmodel.h"

#include <QString>
#include <QVariant>

namespace velm {
/// A list of strings; QML reads them as "modelData".
class VELM_EXPORT StringListModel : public GenericListModel<QString>
{
public:
    StringListModel();
    explicit StringListModel(std::vector<QString>&& items);
    ~StringListModel() override;

    /// Empty for a row that doesn't exist.
    QString data(int row) const;
    /// In place of the one with roles, which isn't meant for strings.
    void update(int row, const QString& text);

    using GenericListModel::data;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
};
} // namespace velm
