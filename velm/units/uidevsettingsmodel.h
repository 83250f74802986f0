#pragma once

#include "velm/velm_export.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

class QAbstractItemModel;

namespace velm {
/// Switches and choices for people who work on the user interface. A page declares them under a tag, shows them as a
/// list and reads them as a dictionary. Their values last as long as the process, shared by all models of a tag;
/// nothing is written to disk. A model learns of what another model of its tag changed at its next load().
class VELM_EXPORT UIDevSettingsModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool expanded READ getExpanded WRITE setExpanded NOTIFY expandedChanged)
    Q_PROPERTY(QAbstractItemModel* model READ getModel CONSTANT)
    Q_PROPERTY(QVariantMap dict READ getDict NOTIFY dictChanged)
public:
    struct Setting
    {
        QString key;
        QString name;
        QStringList values; ///< the choices; empty for a switch
        int current = 0;    ///< a row of `values`; of a switch 0 or 1
    };

    /// Without a tag and without settings.
    explicit UIDevSettingsModel(QObject* parent = nullptr);
    /// Shows the settings with their own values, whatever is kept under the tag until the next load().
    UIDevSettingsModel(const QString& tag, const std::vector<Setting>& settings);
    ~UIDevSettingsModel() override;

    /// Whether the setting of a key isn't 0; false for a key that nobody has.
    bool enabled(const QString& key) const;
    /// The current value of a key; 0 for a key that nobody has.
    int index(const QString& key) const;
    /// From each key to its value: a number for a choice, a bool for a switch.
    QVariantMap getDict() const;
    bool getExpanded() const;
    void setExpanded(bool expanded);
    /// With the roles "itemName", "itemIsEnum", "itemValues" and, to be written as well, "itemCurrentValue".
    QAbstractItemModel* getModel() const;

    /// Declares the settings anew and gives them the values that are kept under the tag. A setting is a list of key,
    /// name and, for a choice, the texts to choose from. An empty tag, or any setting that is none, changes nothing.
    Q_INVOKABLE void load(QString tagName, QVariantList settings);

Q_SIGNALS:
    void dictChanged();
    void expandedChanged();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
