#include "velm/units/uidevsettingsmodel.h"

#include "velm/units/devsettingslist.h"

#include <optional>
#include <utility>

namespace velm {
struct UIDevSettingsModel::Pimpl
{
    DevSettingsList list;
    ut::SignalConnection connection;
    bool expanded = false;

    Pimpl(UIDevSettingsModel& model, const QString& tag, std::vector<Setting> settings)
        : list(tag, std::move(settings)), connection(list.changed.connect([&model] { Q_EMIT model.dictChanged(); }))
    {}
};

namespace {
std::optional<UIDevSettingsModel::Setting> settingFrom(const QVariant& declaration)
{
    if (!declaration.canConvert<QVariantList>())
        return std::nullopt;
    const QVariantList fields = declaration.toList();
    if (fields.size() < 2 || !fields[0].canConvert<QString>() || !fields[1].canConvert<QString>())
        return std::nullopt;
    UIDevSettingsModel::Setting setting{fields[0].toString(), fields[1].toString(), {}, 0};
    if (fields.size() > 2 && fields[2].canConvert<QStringList>())
        setting.values = fields[2].toStringList();
    return setting;
}
} // namespace

UIDevSettingsModel::UIDevSettingsModel(QObject* parent)
    : QObject(parent), m_pimpl(new Pimpl(*this, QString(), std::vector<Setting>()))
{}

UIDevSettingsModel::UIDevSettingsModel(const QString& tag, const std::vector<Setting>& settings)
    : m_pimpl(new Pimpl(*this, tag, settings))
{}

UIDevSettingsModel::~UIDevSettingsModel() = default;

bool UIDevSettingsModel::enabled(const QString& key) const
{
    return index(key) != 0;
}

int UIDevSettingsModel::index(const QString& key) const
{
    for (const Setting& setting : m_pimpl->list.settings())
        if (setting.key == key)
            return setting.current;
    return 0;
}

QVariantMap UIDevSettingsModel::getDict() const
{
    QVariantMap dict;
    for (const Setting& setting : m_pimpl->list.settings())
        dict.insert(setting.key, DevSettingsList::currentValue(setting));
    return dict;
}

bool UIDevSettingsModel::getExpanded() const
{
    return m_pimpl->expanded;
}

void UIDevSettingsModel::setExpanded(bool expanded)
{
    if (std::exchange(m_pimpl->expanded, expanded) != expanded)
        Q_EMIT expandedChanged();
}

QAbstractItemModel* UIDevSettingsModel::getModel() const
{
    return &m_pimpl->list;
}

void UIDevSettingsModel::load(QString tagName, QVariantList settings)
{
    if (tagName.isEmpty())
        return;
    std::vector<Setting> declared;
    for (const QVariant& declaration : settings) {
        std::optional<Setting> setting = settingFrom(declaration);
        if (!setting)
            return;
        declared.push_back(*std::move(setting));
    }
    m_pimpl->list.load(tagName, std::move(declared));
}
} // namespace velm
