#include "velm/models/propertieslistmodel.h"

#include <QMessageLogger>
#include <QScopeGuard>

namespace velm {
PropertiesListModel::PropertiesListModel(const QString& title) : m_title(title)
{}

PropertiesListModel::~PropertiesListModel() = default;

void PropertiesListModel::appendProperty(const QString& label, std::function<void()> handler, bool hasButton,
                                         const QVariant& value, bool readOnly, Type type, const QString& toolTip,
                                         const QList<QString>& choices)
{
    if (hasProperty(label))
        return;
    std::function<void()> onChange;
    if (!hasButton)
        onChange = handler;
    auto prop =
        std::make_unique<Prop>(Prop{label, value, std::move(onChange), choices, static_cast<qint64>(m_rows.size()),
                                    hasButton, readOnly, false, std::move(handler), toolTip, type});
    m_rows.push_back(prop.get());
    m_props.emplace(label, std::move(prop));
}

bool PropertiesListModel::hasProperty(const QString& label) const
{
    return m_props.contains(label);
}

PropertiesListModel::Prop* PropertiesListModel::findProp(const QString& label) const
{
    const auto found = m_props.find(label);
    return found == m_props.end() ? nullptr : found->second.get();
}

const PropertiesListModel::Prop* PropertiesListModel::findProp(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_rows.size() ? m_rows[static_cast<std::size_t>(row)] : nullptr;
}

PropertiesListModel::Prop* PropertiesListModel::findProp(int row)
{
    return const_cast<Prop*>(std::as_const(*this).findProp(row));
}

const PropertiesListModel::Prop* PropertiesListModel::findProp(const QModelIndex& index) const
{
    return findProp(index.row());
}

PropertiesListModel::Prop* PropertiesListModel::findProp(const QModelIndex& index)
{
    return findProp(index.row());
}

void PropertiesListModel::setPropertyValue(Prop& prop, const QVariant& value)
{
    if (prop.value == value)
        return;
    prop.value = value;
    if (prop.onChange)
        prop.onChange();
    const QModelIndex changed = index(static_cast<int>(prop.row), 0, QModelIndex());
    Q_EMIT dataChanged(changed, changed, {ValueRole});
}

bool PropertiesListModel::setProperty(const QString& label, const QVariant& value)
{
    Prop* prop = findProp(label);
    if (prop)
        setPropertyValue(*prop, value);
    return prop != nullptr;
}

bool PropertiesListModel::setComboBoxProperty(const QString& label, int selected, const QList<QString>& choices)
{
    Prop* prop = findProp(label);
    if (prop) {
        prop->choices = choices;
        setPropertyValue(*prop, QVariant(selected));
    }
    return prop != nullptr;
}

bool PropertiesListModel::isDeletingImage(const QString& label) const
{
    const Prop* prop = findProp(label);
    return prop && prop->type == Type::Image && prop->deleting;
}

QVariant PropertiesListModel::property(const QString& label) const
{
    const Prop* prop = findProp(label);
    return prop ? prop->value : QVariant();
}

int PropertiesListModel::rowCount(const QModelIndex&) const
{
    // Below a row, too. This must stay.
    return static_cast<int>(m_props.size());
}

QVariant PropertiesListModel::data(const QModelIndex& index, int role) const
{
    const Prop* prop = index.isValid() ? findProp(index) : nullptr;
    if (!prop)
        return {};
    switch (role) {
    case LabelRole:
        return prop->label;
    case ValueRole:
        return prop->value.isValid() ? prop->value : QVariant(QString());
    case HasButtonRole:
        return prop->hasButton;
    case ReadOnlyRole:
        return prop->readOnly;
    case BoolRole:
        return prop->value.metaType() == QMetaType::fromType<bool>();
    case IsImageRole:
        return prop->type == Type::Image;
    case IsComboBoxRole:
        return prop->type == Type::ComboBox;
    case IsCheckBoxRole:
        return prop->type == Type::CheckBox;
    case IsSwitchRole:
        return prop->type == Type::Switch;
    case IsTextRole:
        return prop->type == Type::Text;
    case ChoicesRole:
        return QVariant(prop->choices);
    case ToolTipRole:
        return prop->toolTip;
    default:
        return {};
    }
}

QHash<int, QByteArray> PropertiesListModel::roleNames() const
{
    return {{LabelRole, "propLabel"},
            {ValueRole, "propValue"},
            {HasButtonRole, "propHasButton"},
            {ReadOnlyRole, "propReadOnly"},
            {BoolRole, "propBool"},
            {IsImageRole, "propIsImage"},
            {IsComboBoxRole, "propIsComboBox"},
            {IsCheckBoxRole, "propIsCheckBox"},
            {IsSwitchRole, "propIsSwitch"},
            {IsTextRole, "propIsText"},
            {ChoicesRole, "propChoices"},
            {ToolTipRole, "propToolTip"}};
}

void PropertiesListModel::valueChanged(const QVariant& value, int index)
{
    Prop* prop = findProp(index);
    if (!prop)
        return;
    const QMetaType type = prop->value.metaType();
    if (value.metaType() != type) {
        QMessageLogger(nullptr, 0, nullptr).warning().noquote() << "Property type does not match the value type";
        return;
    }
    const bool isKnown = type == QMetaType::fromType<bool>() || type == QMetaType::fromType<int>() ||
                         type == QMetaType::fromType<QString>();
    if (!isKnown || prop->value == value)
        return;
    prop->value = value;
    if (prop->onChange)
        prop->onChange();
}

void PropertiesListModel::loadFile(int index)
{
    const Prop* prop = findProp(index);
    if (prop && prop->buttonHandler)
        prop->buttonHandler();
}

void PropertiesListModel::pickImage(int index)
{
    const Prop* prop = findProp(index);
    if (prop && prop->type == Type::Image)
        loadFile(index);
}

void PropertiesListModel::deleteImage(int index)
{
    Prop* prop = findProp(index);
    if (!prop || prop->type != Type::Image || !prop->buttonHandler)
        return;
    prop->deleting = true;
    const auto done = qScopeGuard([prop] { prop->deleting = false; });
    prop->buttonHandler();
}
} // namespace velm
