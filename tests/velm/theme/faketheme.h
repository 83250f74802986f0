#pragma once

#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QSharedPointer>
#include <QVariant>

#include <functional>

/// The Theme singleton as themes have it: setColorTheme() hands the engine a map of colours.
class FakeTheme : public QObject
{
    Q_OBJECT
public:
    /// Makes the value of the engine's property "colorMap" for a theme.
    static inline std::function<QVariant(int theme)> makeColorMap;

    explicit FakeTheme(QQmlEngine& engine) : m_engine(engine) {}

    Q_INVOKABLE void setColorTheme(int theme)
    {
        themes += theme;
        m_engine.setProperty("colorMap", makeColorMap(theme));
    }

    static void registerType()
    {
        qmlRegisterSingletonType<FakeTheme>("Tandolin.API.Core.Themes.Engine", 1, 0, "Theme",
                                            [](QQmlEngine* engine, QJSEngine*) { return new FakeTheme(*engine); });
    }
    static QVariant colorMap(const QVariantHash& colors)
    {
        const auto map = QSharedPointer<QQmlPropertyMap>::create();
        map->insert(colors);
        return QVariant::fromValue(map);
    }

    static inline QList<int> themes;

private:
    QQmlEngine& m_engine;
};
