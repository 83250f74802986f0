#include "ut/config.h"

#include "ut/environment.h"
#include "ut/settingsfile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include <array>
#include <memory>

namespace ut {
namespace {
constexpr int onlyProfile = 1;

std::unique_ptr<SettingsFile> openStore;

SettingsFile& store()
{
    if (!openStore) {
        QString path = QString::fromStdWString(getEnvironment(L"TANDOLIN_CONFIG").wide());
        if (path.isEmpty())
            path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                   QStringLiteral("/Tandolin/settings.ini");
        openStore = std::make_unique<SettingsFile>(QFileInfo(path).absoluteFilePath());
    }
    return *openStore;
}

QString sectionOf(ECfgGroup group)
{
    switch (group) {
    case ECfgGroup::General:
        return QStringLiteral("General");
    case ECfgGroup::Interface:
        return QStringLiteral("Interface");
    case ECfgGroup::Dialogs:
        return QStringLiteral("Dialogs");
    }
    return QString::number(static_cast<std::uint32_t>(group));
}

QString textOf(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}

/// `convert` turns the entry's text into an optional value.
template <typename T, typename Convert>
bool readAs(ECfgGroup group, const OdString& key, T& value, Convert convert)
{
    const std::optional<QString> text = store().value(sectionOf(group), textOf(key));
    if (!text)
        return false;
    const std::optional<T> converted = convert(*text);
    if (converted)
        value = *converted;
    return converted.has_value();
}

/// Exactly so many numbers, with commas between them.
template <std::size_t count>
std::optional<std::array<int, count>> numbers(const QString& text)
{
    const QStringList parts = text.split(u',');
    std::array<int, count> result{};
    bool ok = parts.size() == static_cast<qsizetype>(count);
    for (std::size_t i = 0; ok && i < count; ++i)
        result[i] = parts[static_cast<qsizetype>(i)].toInt(&ok);
    return ok ? std::optional(result) : std::nullopt;
}

bool write(ECfgGroup group, const OdString& key, const QString& value)
{
    return store().set(sectionOf(group), textOf(key), value);
}

/// A list is one text, in the nameless entry below its key.
QString listEntry(const OdString& key)
{
    return textOf(key) + u'/';
}
} // namespace

bool Config::read(ECfgGroup group, const OdString& key, bool& value)
{
    return readAs(group, key, value, [](const QString& text) {
        const bool isTrue = text == u"true";
        return isTrue || text == u"false" ? std::optional(isTrue) : std::nullopt;
    });
}

bool Config::read(ECfgGroup group, const OdString& key, short& value)
{
    return readAs(group, key, value, [](const QString& text) {
        bool ok = false;
        const short number = text.toShort(&ok);
        return ok ? std::optional(number) : std::nullopt;
    });
}

bool Config::read(ECfgGroup group, const OdString& key, long& value)
{
    return readAs(group, key, value, [](const QString& text) {
        bool ok = false;
        const long number = text.toLong(&ok);
        return ok ? std::optional(number) : std::nullopt;
    });
}

bool Config::read(ECfgGroup group, const OdString& key, double& value)
{
    return readAs(group, key, value, [](const QString& text) {
        bool ok = false;
        const double number = text.toDouble(&ok);
        return ok ? std::optional(number) : std::nullopt;
    });
}

bool Config::read(ECfgGroup group, const OdString& key, OdString& value)
{
    return readAs(group, key, value, [](const QString& text) { return std::optional<OdString>(text.toStdWString()); });
}

bool Config::read(ECfgGroup group, const OdString& key, wxSize& value)
{
    return readAs(group, key, value, [](const QString& text) {
        const auto n = numbers<2>(text);
        return n ? std::optional(wxSize(n->at(0), n->at(1))) : std::nullopt;
    });
}

bool Config::read(ECfgGroup group, const OdString& key, wxPoint& value)
{
    return readAs(group, key, value, [](const QString& text) {
        const auto n = numbers<2>(text);
        return n ? std::optional(wxPoint(n->at(0), n->at(1))) : std::nullopt;
    });
}

bool Config::read(ECfgGroup group, const OdString& key, wxRect& value)
{
    return readAs(group, key, value, [](const QString& text) {
        const auto n = numbers<4>(text);
        return n ? std::optional(wxRect(n->at(0), n->at(1), n->at(2), n->at(3))) : std::nullopt;
    });
}

bool Config::writeBool(ECfgGroup group, const OdString& key, bool value)
{
    return write(group, key, value ? QStringLiteral("true") : QStringLiteral("false"));
}

bool Config::writeLong(ECfgGroup group, const OdString& key, long value)
{
    return write(group, key, QString::number(value));
}

bool Config::writeDouble(ECfgGroup group, const OdString& key, double value)
{
    return write(group, key, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

bool Config::writeString(ECfgGroup group, const OdString& key, const OdString& value)
{
    return write(group, key, textOf(value));
}

bool Config::writeSize(ECfgGroup group, const OdString& key, const wxSize& value)
{
    return write(group, key, QStringLiteral("%1,%2").arg(value.x).arg(value.y));
}

bool Config::writePoint(ECfgGroup group, const OdString& key, const wxPoint& value)
{
    return write(group, key, QStringLiteral("%1,%2").arg(value.x).arg(value.y));
}

bool Config::writeRect(ECfgGroup group, const OdString& key, const wxRect& value)
{
    return write(group, key,
                 QStringLiteral("%1,%2,%3,%4").arg(value.x).arg(value.y).arg(value.width).arg(value.height));
}

bool Config::deleteEntry(ECfgGroup group, const OdString& key)
{
    const QString section = sectionOf(group);
    const QString name = textOf(key);
    if (!store().value(section, name))
        return false;
    store().set(section, name, std::nullopt);
    return true;
}

bool Config::listGroups(ECfgGroup group, OdArray<OdString>& groups, const OdString& key)
{
    groups.clear();
    for (const QString& name : store().groups(sectionOf(group), textOf(key)))
        groups.append(name.toStdWString());
    return !groups.isEmpty();
}

Config::ERegList Config::loadListFromRegistry(ECfgGroup group, const OdString& key, OdArray<OdString>& list)
{
    list.clear();
    const std::optional<QString> text = store().value(sectionOf(group), listEntry(key));
    if (!text)
        return ERegList::NoKey;
    for (const QJsonValue& item : QJsonDocument::fromJson(text->toUtf8()).array())
        list.append(item.toString().toStdWString());
    return ERegList::Loaded;
}

Config::ERegList Config::saveListToRegistry(ECfgGroup group, const OdString& key, const OdArray<OdString>& list,
                                            int profile)
{
    QJsonArray array;
    for (const OdString& text : list)
        array.append(textOf(text));
    const QString text = QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
    const bool saved = profile == onlyProfile && store().set(sectionOf(group), listEntry(key), text);
    return saved ? ERegList::Saved : ERegList::NotSaved;
}

bool Config::deleteGroup(ECfgGroup group, const OdString& key)
{
    return store().removeGroup(sectionOf(group), textOf(key));
}

std::unique_ptr<ConfigNode> Config::getIfProfileNode(ECfgGroup group, int profile)
{
    return profile == onlyProfile ? std::make_unique<ConfigNode>(group) : nullptr;
}

bool ConfigNode::createNode(const OdString& key) const
{
    return store().set(sectionOf(m_group), textOf(key), QString());
}

OdString Config::regProduct()
{
    return L"Tandolin";
}

OdString Config::fileName()
{
    return store().path().toStdWString();
}

bool Config::isWritable()
{
    return store().isWritable();
}

void Config::reopen()
{
    openStore.reset();
}
} // namespace ut
