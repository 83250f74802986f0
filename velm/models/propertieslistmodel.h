#pragma once

#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace velm {
/// Named values of a panel, each shown as a combo box, check box, switch, text field or image. A change in the page or
/// by the owner calls the property's handler. The list is filled before a page binds it: appending isn't signalled.
class VELM_EXPORT PropertiesListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString title READ getTitle CONSTANT)
public:
    enum class Type
    {
        ComboBox = 0,
        CheckBox = 1,
        Image = 2,
        Switch = 3,
        Text = 4,
    };
    using enum Type;

    enum Role
    {
        LabelRole = 0,
        ValueRole,
        HasButtonRole,
        ReadOnlyRole,
        BoolRole,
        IsImageRole,
        IsComboBoxRole,
        IsCheckBoxRole,
        IsSwitchRole,
        IsTextRole,
        ChoicesRole,
        ToolTipRole,
    };

    explicit PropertiesListModel(const QString& title);
    ~PropertiesListModel() override;

    QString getTitle() const { return m_title; }

    /// The handler is called after a change of the value or, with a button, by the button alone. A label that is taken
    /// keeps its property. The value of a combo box is the index of its choice.
    void appendProperty(const QString& label, std::function<void()> handler, bool hasButton, const QVariant& value,
                        bool readOnly, Type type, const QString& toolTip = {}, const QList<QString>& choices = {});
    bool hasProperty(const QString& label) const;
    /// False for a label that nobody has.
    bool setProperty(const QString& label, const QVariant& value);
    /// As setProperty(), with new choices. They are not signalled by themselves.
    bool setComboBoxProperty(const QString& label, int selected, const QList<QString>& choices);
    /// Whether the handler of an image is called to delete it, and not to pick one.
    bool isDeletingImage(const QString& label) const;
    /// Empty for a label that nobody has.
    QVariant property(const QString& label) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

public Q_SLOTS:
    /// What the page changed; not signalled, since the page shows it already. A value of another type than the present
    /// one is refused with a warning.
    void valueChanged(const QVariant& value, int index);
    void loadFile(int index);
    void pickImage(int index);
    void deleteImage(int index);

protected:
    struct Prop
    {
        QString label;
        QVariant value;
        std::function<void()> onChange;
        QList<QString> choices;
        qint64 row;
        bool hasButton;
        bool readOnly;
        bool deleting;
        std::function<void()> buttonHandler;
        QString toolTip;
        Type type;
    };

    // Null when there is none.
    const Prop* findProp(const QModelIndex& index) const;
    Prop* findProp(const QModelIndex& index);
    const Prop* findProp(int row) const;
    Prop* findProp(int row);
    /// Nothing for the present value.
    void setPropertyValue(Prop& prop, const QVariant& value);

private:
    Prop* findProp(const QString& label) const;

    QString m_title;
    std::map<QString, std::unique_ptr<Prop>> m_props;
    std::vector<Prop*> m_rows; // owned by m_props
};
} // namespace velm
