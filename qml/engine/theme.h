#pragma once

#include <QObject>
#include <QQmlPropertyMap>
#include <QSharedPointer>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace velmqml {
/// The colours of the theme that is in force. They are kept in a map of "#rrggbb" texts, which the host finds as the
/// engine's property "colorMap" and pages as `colors`; whoever changes the map recolours both. Before the first theme
/// is set, pages see the dark colours and the host none.
class Theme : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QVariant colors READ colors NOTIFY colorsChanged)
    Q_PROPERTY(int theme READ theme NOTIFY themeChanged)
    Q_PROPERTY(bool dark READ dark NOTIFY themeChanged)
public:
    static Theme* create(QQmlEngine* engine, QJSEngine*);

    /// 0 is the dark theme, 1 the light one; another number warns and gives the dark one. The engine's map is refilled,
    /// or replaced when the engine's property holds none.
    Q_INVOKABLE void setColorTheme(int theme);

    /// The QQmlPropertyMap; a QVariant, so that a page may read any name from it.
    QVariant colors() const;
    int theme() const { return m_theme; }
    bool dark() const { return m_theme == 0; }

Q_SIGNALS:
    void colorsChanged();
    void themeChanged();

private:
    explicit Theme(QQmlEngine* engine);
    void fill();

    QQmlEngine* m_engine; // not owned
    QSharedPointer<QQmlPropertyMap> m_colors;
    int m_theme = 0;
};
} // namespace velmqml
