#pragma once

#include "support/pagetest.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace velmtest {
/// A page in a window that has the keyboard; without one there is nothing to test, and the test ends.
class Shown
{
public:
    explicit Shown(QObject* page) : m_page(page)
    {
        auto* item = qobject_cast<QQuickItem*>(page);
        if (!item)
            qFatal("There is no page");
        item->setParentItem(m_window.contentItem());
        item->setSize(QSizeF(item->implicitWidth(), item->implicitHeight()));
        m_window.resize(500, 400);
        m_window.show();
        m_window.requestActivate();
        item->forceActiveFocus();
        if (!QTest::qWaitForWindowActive(&m_window))
            qFatal("The page doesn't come up");
    }
    /// The page goes before its window, which lets go of the pictures that it drew.
    ~Shown() { m_page.reset(); }
    Q_DISABLE_COPY_MOVE(Shown)

    QObject* page() const { return m_page.get(); }
    QQuickWindow* window() { return &m_window; }
    QQuickItem* focusItem() const { return m_window.activeFocusItem(); }
    QQuickItem* find(const char* name) const { return m_page->findChild<QQuickItem*>(QString::fromLatin1(name)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&m_window, key, modifiers); }
    void type(const char* text)
    {
        for (; *text; ++text)
            QTest::keyClick(&m_window, *text);
    }
    void click(QQuickItem* item)
    {
        // Layouts place their items with the next frame.
        m_window.grabWindow();
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(&m_window, Qt::LeftButton, {}, centre.toPoint());
    }

private:
    std::unique_ptr<QObject> m_page;
    QQuickWindow m_window;
};

/// An engine as the host runs it, and pages that are written in a test.
class PageEngine
{
public:
    PageEngine() : m_engine(velm::createEngine(m_loader)) {}
    ~PageEngine() { velm::resetEngine(m_engine); }
    Q_DISABLE_COPY_MOVE(PageEngine)

    QQmlEngine* get() const { return m_engine.get(); }
    /// Null, which is logged, when the page isn't correct. The models become properties of the root, which declares
    /// them.
    QObject* load(const QByteArray& body, const QVariantMap& properties = {})
    {
        QQmlComponent component(m_engine.get());
        component.setData("import QtQuick\nimport QtQuick.Controls\nimport Tandolin.API.Controls\n" + body, QUrl());
        if (!component.isReady()) {
            qCritical("%s", qPrintable(component.errorString()));
            return nullptr;
        }
        return component.createWithInitialProperties(properties);
    }

private:
    velm::PluginImportLoader m_loader;
    std::unique_ptr<QQmlEngine> m_engine;
};
} // namespace velmtest
