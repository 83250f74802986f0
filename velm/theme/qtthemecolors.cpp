#include "velm/theme/qtthemecolors.h"

#include "desktop/desktop.h"
#include "od/odstring.h"
#include "ut/config.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/engine.h"
#include "velm/bridge/iqtcontroller.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QMessageLogger>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QSharedPointer>

#include <array>
#include <cstdio>

namespace velm {
namespace {
constexpr unsigned long fallbackColor = 0xC0C0C0;
constexpr int noTheme = -1;

/// The names that the colours have in QML, by the value of ut::EGuiColor.
const std::array<OdString, 30> colorNames = {
    L"panelBackground",
    L"ribbonBackground",
    L"panelsetIconStripBaseColor",
    L"panelsetIconStripActiveColor",
    L"comboBackground",
    L"inputBg",
    L"buttonLightBg",
    L"menuItemHoverBg",
    L"accentSoft",
    L"accentMedium",
    L"accentHard",
    L"grey0",
    L"grey1",
    L"grey2",
    L"grey3",
    L"grey4",
    L"grey5",
    L"grey6",
    L"grey7",
    L"grey8",
    L"grey9",
    L"grey10",
    L"obsolete_brandColor_placeholder",
    L"brandAccentColor",
    L"yellow",
    L"darkYellow",
    L"red",
    L"green",
    L"blueButtonBg",
    L"blueHighlight",
};

const char* const themeDocument = "import QtQuick\n"
                                  "           import Tandolin.API.Core.Themes.Engine\n"
                                  "           QtObject { \n"
                                  "             id: root\n"
                                  "             Component.onCompleted: Theme.setColorTheme(%1)\n"
                                  "           }";

const char* const styleSheet = "\n* {\n"
                               "  color:       %1;\n"
                               "  font-size:   %2pt;\n"
                               "  font-family: \"%3\";\n"
                               "  background:  %4;\n"
                               "}\n"
                               "\n"
                               "QToolTip {\n"
                               "  border: none;\n"
                               "  padding: 2px;\n"
                               "}\n";

QDebug warning()
{
    return QMessageLogger(nullptr, 0, nullptr).warning().noquote();
}

QDebug debug()
{
    return QMessageLogger(nullptr, 0, nullptr).debug().noquote();
}

/// A colour 0x00BBGGRR from its form "#rrggbb" in the colour map.
unsigned long parseColor(const QString& text)
{
    if (text.size() != 7 || text[0] != '#') {
        debug() << "Invalid color format: wrong size or wrong first character" << text;
        return fallbackColor;
    }
    const QByteArray digits = text.mid(1).toUtf8();
    if (digits.size() != 6) {
        debug() << "Invalid color format: unexpected array length" << digits.size();
        return fallbackColor;
    }
    unsigned red = 0;
    unsigned green = 0;
    unsigned blue = 0;
    if (std::sscanf(digits.constData(), "%02x%02x%02x", &red, &green, &blue) != 3) {
        debug() << "Invalid color format: not hexadecimal" << text;
        return fallbackColor;
    }
    return RGB(red, green, blue);
}

QColor toQtColorFromRef(unsigned long color)
{
    const auto value = static_cast<COLORREF>(color);
    return {GetRValue(value), GetGValue(value), GetBValue(value)};
}
} // namespace

struct QtThemeColors::Pimpl
{
    bool applyTheme(int newTheme, ERefreshQml refresh);
    QSharedPointer<QQmlPropertyMap> colorMap() const;

    QtThemeColors* owner; // not owned
    int theme;
    QQmlEngine* engine;        // not owned
    QApplication* application; // not owned
    std::function<IQtController*()> controllerGetter;
    unsigned long customColor;
};

bool QtThemeColors::Pimpl::applyTheme(int newTheme, ERefreshQml refresh)
{
    theme = newTheme;
    // The document sets the engine's colour map as it is created.
    if (!loadQml(QString(themeDocument).arg(newTheme), *engine))
        return false;
    if (refresh == ERefreshQml::Yes) {
        engine->clearComponentCache();
        if (controllerGetter)
            if (IQtController* controller = controllerGetter())
                controller->reload(0);
    }
    if (colorMap()) {
        const auto name = [this](ut::EGuiColor color) { return toQtColorFromRef(owner->guiColorRef(color)).name(); };
        application->setStyleSheet(QString(styleSheet)
                                       .arg(name(ut::EGuiColor::Grey10), QString::number(8),
                                            QApplication::font().family(), name(ut::EGuiColor::Grey3)));
    }
    return true;
}

QSharedPointer<QQmlPropertyMap> QtThemeColors::Pimpl::colorMap() const
{
    const QVariant property = engine->property("colorMap");
    if (!property.isValid()) {
        warning() << "Didn't find colorMap property of engine";
        return {};
    }
    auto map = property.value<QSharedPointer<QQmlPropertyMap>>();
    if (!map)
        warning() << "Setting color theme failed";
    return map;
}

QtThemeColors::QtThemeColors(QQmlEngine& engine, QApplication& application,
                             std::function<IQtController*()> controllerGetter, ut::EGuiColorTheme theme,
                             ERefreshQml refresh)
    : m_pimpl(new Pimpl{this, noTheme, &engine, &application, std::move(controllerGetter), 0xFF9340})
{
    m_pimpl->applyTheme(static_cast<int>(theme), refresh);
}

QtThemeColors::~QtThemeColors() = default;

unsigned long QtThemeColors::guiColorRef(ut::EGuiColor color)
{
    if (m_pimpl->theme == noTheme) {
        long theme = noTheme;
        if (ut::Config::read(ut::ECfgGroup::Interface, L"COLORTHEME", theme) && theme != noTheme)
            m_pimpl->applyTheme(static_cast<int>(theme), ERefreshQml::Yes);
    }
    if (color == ut::EGuiColor::Brand)
        return m_pimpl->customColor;

    const int index = static_cast<int>(color);
    if (index < 0 || index >= static_cast<int>(colorNames.size())) {
        warning().nospace() << "Color with index " << index << " does not exist in this theme.";
        return fallbackColor;
    }
    const auto map = m_pimpl->colorMap();
    if (!map) {
        warning() << "Current theme is not found in engine.";
        return fallbackColor;
    }
    const QString name = toQt(colorNames[index]);
    const QVariant value = map->value(name);
    if (!value.isValid()) {
        warning() << name << "does not exist in this theme.";
        return fallbackColor;
    }
    return parseColor(value.toString());
}

bool QtThemeColors::setColorTheme(ut::EGuiColorTheme theme)
{
    return m_pimpl->applyTheme(static_cast<int>(theme), ERefreshQml::Yes);
}

void QtThemeColors::setGuiColor(ut::EGuiColor color, unsigned long value)
{
    if (color == ut::EGuiColor::Brand)
        m_pimpl->customColor = value;
    const auto map = m_pimpl->colorMap();
    if (!map) {
        warning() << "Current color cannot be set because theme is not found in engine.";
        return;
    }
    const QColor rgb = toQtColorFromRef(value);
    // Not padded on purpose: with little red the entry comes out too short, and reading it gives the fallback.
    const int packed = rgb.red() * 65536 + rgb.green() * 256 + rgb.blue();
    map->insert(toQt(colorNames[static_cast<int>(color)]), '#' + QString::number(packed, 16));
}

wxColour QtThemeColors::guiColor(ut::EGuiColor color)
{
    const auto value = static_cast<COLORREF>(guiColorRef(color));
    return {GetRValue(value), GetGValue(value), GetBValue(value), 255};
}
} // namespace velm
