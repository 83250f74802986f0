#include "host/pagepopup.h"

#include "host/nativewindow.h"
#include "host/pagegroup.h"
#include "host/pageloader.h"
#include "host/pageview.h"
#include "host/themecolours.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>

#include <wx/window.h>

#include <utility>

namespace workbench {
PagePopup::PagePopup(PageGroup& group, wxWindow& owner, const QUrl& page, velm::BasePopupController& controller)
    : m_group(group), m_owner(owner), m_controller(controller), m_view(std::make_unique<PageView>())
{
    connect(&m_controller, &velm::BasePopupController::closed, this, &PagePopup::close);
    connect(m_view.get(), &QWindow::activeChanged, this, &PagePopup::activeChanged);
    // What is shown has been laid out then.
    connect(m_view.get(), &QQuickWindow::afterAnimating, this, &PagePopup::fitShape);
    m_group.setPopup(this);
    open(page);
}

PagePopup::~PagePopup()
{
    takeDown();
}

void PagePopup::open(const QUrl& page)
{
    QQmlEngine* engine = m_group.engine();
    if (!engine)
        return;
    m_view->setRoot(
        loadPage(*engine, page, {{QStringLiteral("controller"), QVariant::fromValue<QObject*>(&m_controller)}}).root);
    if (!m_view->root())
        return;
    const QPoint place = QCursor::pos();
    QScreen* screen = QGuiApplication::screenAt(place);
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    m_view->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    if (const std::uintptr_t window = native::toplevelWindow(m_owner)) {
        m_ownerWindow.reset(QWindow::fromWinId(window));
        m_view->setTransientParent(m_ownerWindow.get());
    }
    m_view->setGeometry(area);
    m_view->setMask(QRect(place - area.topLeft(), QSize(1, 1)));
    applyTheme();
    m_isOpen = true;
    m_view->show();
    QMetaObject::invokeMethod(m_view->root(), "openAt", Q_ARG(QVariant, QPointF(place - area.topLeft())));
}

void PagePopup::fitShape()
{
    // Not every window manager gives the keyboard to a window whose toolkit saw nothing of the click that asked for it.
    if (m_isOpen && !std::exchange(m_askedForKeyboard, true))
        native::giveKeyboard(m_owner, m_view->winId());
    QRegion shape;
    // Menus are children of the layer that the controls lay over the page.
    for (const QQuickItem* layer : m_view->contentItem()->childItems())
        for (const QQuickItem* item : layer->childItems())
            if (item->isVisible())
                shape += item->mapRectToScene(item->boundingRect()).toAlignedRect();
    // No shape at all would be that of the whole window.
    if (!shape.isEmpty() && shape != m_view->mask())
        m_view->setMask(shape);
}

void PagePopup::activeChanged()
{
    if (!m_isOpen)
        return;
    if (m_view->isActive())
        m_wasActive = true;
    else if (m_wasActive)
        Q_EMIT m_controller.closed();
}

void PagePopup::close()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    const bool hadKeyboard = m_view->isActive();
    m_view->hide();
    if (hadKeyboard)
        native::takeKeyboard(m_owner);
}

void PagePopup::takeDown()
{
    if (m_group.popup() == this)
        m_group.setPopup(nullptr); // which calls this again
    close();
    m_view->setRoot(nullptr);
    m_view->destroy();
    m_view->setTransientParent(nullptr);
    m_ownerWindow.reset();
}

void PagePopup::applyTheme()
{
    m_view->setColor(qtGuiColour(ut::EGuiColor::Grey1));
}

QObject* PagePopup::find(const QString& objectName) const
{
    return m_isOpen ? m_view->root()->findChild<QObject*>(objectName) : nullptr;
}
} // namespace workbench
