#pragma once

#include "ut/signal.h"
#include "velm/units/uidevsettingsmodel.h"

#include <QAbstractListModel>

namespace velm {
/// The settings of one UIDevSettingsModel as rows.
class DevSettingsList : public QAbstractListModel
{
    Q_OBJECT
public:
    using Setting = UIDevSettingsModel::Setting;

    enum Role
    {
        NameRole = Qt::UserRole,
        IsEnumRole,
        ValuesRole,
        CurrentValueRole,
    };

    DevSettingsList(const QString& tag, std::vector<Setting> settings);
    ~DevSettingsList() override;

    const std::vector<Setting>& settings() const { return m_settings; }
    /// Takes over the settings, with the values that are kept under the tag, and calls `changed`.
    void load(const QString& tag, std::vector<Setting> settings);
    /// A number for a choice, a bool for a switch.
    static QVariant currentValue(const Setting& setting);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Writes the current value, also one that is no row of the values.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QHash<int, QByteArray> roleNames() const override;

    /// Called after each change.
    ut::SignalBase<void(), ut::MutexDisabledPolicy> changed;

private:
    QString m_tag;
    std::vector<Setting> m_settings;
};
} // namespace velm
