#include "velm/filter/componenturlwithsettings.h"

#include "velm/bridge/engine.h"

namespace velm {
namespace {
// Known by its name before anybody makes a QVariant of it.
[[maybe_unused]] const int registered = qRegisterMetaType<ComponentUrlWithSettings>();
} // namespace

ComponentUrlWithSettings::ComponentUrlWithSettings() = default;

ComponentUrlWithSettings::ComponentUrlWithSettings(const QUrl& componentUrl, const QVariant& componentSettings)
    : url(componentUrl), settings(componentSettings)
{}

ComponentUrlWithSettings::ComponentUrlWithSettings(const ComponentUrlWithSettings&) = default;
ComponentUrlWithSettings::ComponentUrlWithSettings(ComponentUrlWithSettings&&) noexcept = default;
ComponentUrlWithSettings& ComponentUrlWithSettings::operator=(const ComponentUrlWithSettings&) = default;
ComponentUrlWithSettings& ComponentUrlWithSettings::operator=(ComponentUrlWithSettings&&) noexcept = default;
ComponentUrlWithSettings::~ComponentUrlWithSettings() = default;

QUrl filter::defaultComponentUrl(const QString& type)
{
    QString file = type + QStringLiteral("Value.qml");
    file[0] = file[0].toUpper();
    return getQUrl(QStringLiteral("simplefilter/valuecomponents/") + file,
                   QStringLiteral("Tandolin.API.Controls.Private"), QStringLiteral("qml/plugins"));
}
} // namespace velm
