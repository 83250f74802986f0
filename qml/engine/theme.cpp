#include "theme.h"

#include "palettes.h"

#include <QQmlEngine>
#include <QVariant>

namespace {
constexpr char mapProperty[] = "colorMap";

QSharedPointer<QQmlPropertyMap> createMap()
{
    QSharedPointer<QQmlPropertyMap> map(new QQmlPropertyMap);
    QJSEngine::setObjectOwnership(map.get(), QJSEngine::CppOwnership);
    return map;
}
} // namespace

namespace velmqml {
Theme::Theme(QQmlEngine* engine) : m_engine(engine), m_colors(createMap())
{
    fill();
}

Theme* Theme::create(QQmlEngine* engine, QJSEngine*)
{
    return new Theme(engine);
}

QVariant Theme::colors() const
{
    return QVariant::fromValue(m_colors.get());
}

void Theme::setColorTheme(int theme)
{
    if (theme != 0 && theme != 1) {
        qWarning("There is no colour theme %d; the dark theme is used.", theme);
        theme = 0;
    }
    const bool changed = theme != m_theme;
    m_theme = theme;
    auto map = m_engine->property(mapProperty).value<QSharedPointer<QQmlPropertyMap>>();
    const bool replaced = !map || map != m_colors;
    if (!map)
        map = createMap();
    // The former map stays alive until pages have left it.
    m_colors.swap(map);
    fill();
    m_engine->setProperty(mapProperty, QVariant::fromValue(m_colors));
    if (replaced)
        Q_EMIT colorsChanged();
    if (changed)
        Q_EMIT themeChanged();
}

void Theme::fill()
{
    for (const ThemeColor& color : themeColors)
        m_colors->insert(QString::fromLatin1(color.name), QString::fromLatin1(dark() ? color.dark : color.light));
}
} // namespace velmqml
