#pragma once

#include "velm/models/genericlistmodel/genericlistmodel.h"

#include <QSize>
#include <QString>
#include <QVariant>

namespace velm {
/// A row of a combo box: a text with an icon, and the value behind it.
class VELM_EXPORT ComboItem
{
public:
    ComboItem(const QString& text, const QString& icon, int iconWidth, int iconHeight, const QVariant& value);

    static ComboItem separator();

    static QString getDefaultItemType(); ///< "text"
    static QString getSeparatorType();   ///< "separator"
    static QSize getDefaultIconSize();

    bool operator==(const ComboItem& other) const;

    QString type;
    QString text;
    QString icon; ///< its source
    QVariant value;
    int iconWidth; ///< in device independent pixels, as the height
    int iconHeight;

private:
    ComboItem();
};

/// The rows of a combo box.
class VELM_EXPORT ComboModel : public GenericListModel<ComboItem>
{
    Q_OBJECT
    Q_PROPERTY(QString textRole READ getTextRole CONSTANT)
public:
    enum Role
    {
        TypeRole = Qt::WhatsThisRole,
        TextRole = Qt::UserRole,
        ValueRole, ///< as a string, whatever it is
        IconRole,
        IconWidthRole,
        IconHeightRole,
    };

    using GenericListModel::GenericListModel;
    ComboModel();
    ~ComboModel() override;

    /// The name of the role that a combo box shows.
    QString getTextRole() const;

    using GenericListModel::data;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
};
} // namespace velm
