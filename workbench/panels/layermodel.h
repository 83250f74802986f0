#pragma once

#include "od/odapdocmanager.h"
#include "od/oddbobjectid.h"

#include <QAbstractListModel>

#include <vector>

class OdDbDatabase;
class OdDbLayerTableRecord;

namespace workbench {
/// The layers of one drawing in the order of the drawing.
class LayerModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role
    {
        NameRole = Qt::UserRole,
        ColorRole,
        OnRole,
        FrozenRole,
        LockedRole,
        RenamableRole,
    };

    explicit LayerModel(QObject* parent = nullptr);

    /// Not owned; null for no layers.
    void setDatabase(OdDbDatabase* database);
    OdDbDatabase* database() const { return m_database; }
    /// Null for a row that doesn't exist.
    OdDbLayerTableRecord* layer(int row) const;
    /// The standard colour is white on a dark background and black on a light one.
    void setDarkBackground(bool dark);
    /// To call after a change of layers.
    void layersChanged();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    OdDbDatabase* m_database = nullptr; // not owned
    std::vector<OdDbObjectId> m_layers;
    bool m_darkBackground = true;
};
} // namespace workbench
