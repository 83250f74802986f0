#include "velm/models/combomodel.h"

namespace velm {
ComboItem::ComboItem()
    : type(getSeparatorType()), iconWidth(getDefaultIconSize().width()), iconHeight(getDefaultIconSize().height())
{}

ComboItem::ComboItem(const QString& text, const QString& icon, int iconWidth, int iconHeight, const QVariant& value)
    : type(getDefaultItemType()), text(text), icon(icon), value(value), iconWidth(iconWidth), iconHeight(iconHeight)
{}

ComboItem ComboItem::separator()
{
    return {};
}

QString ComboItem::getDefaultItemType()
{
    return QStringLiteral("text");
}

QString ComboItem::getSeparatorType()
{
    return QStringLiteral("separator");
}

QSize ComboItem::getDefaultIconSize()
{
    return {24, 24};
}

bool ComboItem::operator==(const ComboItem& other) const
{
    return text == other.text && value == other.value && icon == other.icon && iconWidth == other.iconWidth &&
           iconHeight == other.iconHeight && type == other.type;
}

ComboModel::ComboModel() = default;

ComboModel::~ComboModel() = default;

QString ComboModel::getTextRole() const
{
    return QString::fromLatin1(roleNames().value(TextRole));
}

QVariant ComboModel::data(const QModelIndex& index, int role) const
{
    const ComboItem* item = getItem(index);
    if (!item)
        return {};
    switch (role) {
    case TypeRole:
        return item->type;
    case TextRole:
        return item->text;
    case ValueRole:
        return item->value.toString();
    case IconRole:
        return item->icon;
    case IconWidthRole:
        return item->iconWidth;
    case IconHeightRole:
        return item->iconHeight;
    default:
        return {};
    }
}

QHash<int, QByteArray> ComboModel::roleNames() const
{
    return {{TypeRole, "whatsThis"}, {TextRole, "text"},           {ValueRole, "value"},
            {IconRole, "icon"},      {IconWidthRole, "iconWidth"}, {IconHeightRole, "iconHeight"}};
}
} // namespace velm
