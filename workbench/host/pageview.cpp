#include "host/pageview.h"

#include <QCoreApplication>
#include <QQuickItem>

namespace workbench {
namespace {
bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::NativeGesture:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::ContextMenu:
        return true;
    default:
        return false;
    }
}
} // namespace

PageView::PageView()
{
    // The overlay of a popup takes what is for the window, by a filter on the window itself.
    QCoreApplication::instance()->installEventFilter(this);
}

PageView::~PageView() = default;

void PageView::setRoot(std::unique_ptr<QQuickItem> root)
{
    m_root = std::move(root);
    if (m_root) {
        m_root->setParentItem(contentItem());
        m_root->setSize(size());
    }
}

void PageView::setBlocked(bool blocked)
{
    if (m_blocked == blocked)
        return;
    if (blocked) {
        // Whatever was pressed or hovered would stay so, since its end is swallowed.
        if (QQuickItem* grabber = mouseGrabberItem())
            grabber->ungrabMouse();
        QEvent leave(QEvent::Leave);
        QQuickWindow::event(&leave);
    }
    m_blocked = blocked;
    // Qt activates a clicked window before the window hears of the click.
    setFlag(Qt::WindowDoesNotAcceptFocus, blocked);
}

/// Where Tab begins in the page or ends; null for a page without such a place. The way back from the page itself misses
/// a scope that is the last of all.
QQuickItem* PageView::endOfChain(bool first) const
{
    constexpr int longest = 1000;
    QQuickItem* begin = contentItem()->nextItemInFocusChain(true);
    if (!begin || begin == contentItem())
        return nullptr;
    QQuickItem* end = begin;
    for (int step = 0; !first && step < longest && end->nextItemInFocusChain(true) != begin; ++step)
        end = end->nextItemInFocusChain(true);
    return end;
}

void PageView::focusEnd(bool first)
{
    if (QQuickItem* item = endOfChain(first))
        item->forceActiveFocus(first ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

bool PageView::hasFocusItem() const
{
    // An inactive window has no active item, but its scopes remember theirs.
    const QQuickItem* item = contentItem();
    while (item->isFocusScope() && item->scopedFocusItem())
        item = item->scopedFocusItem();
    return item != contentItem() && item != m_root.get();
}

bool PageView::leavesByTab(bool forward) const
{
    QQuickItem* current = activeFocusItem();
    const QQuickItem* entry = endOfChain(forward);
    if (!entry)
        return true;
    if (!current || (current->isAncestorOf(entry) && !current->activeFocusOnTab()))
        return false;
    // A text editor of several lines takes Tab as text.
    if (current->inherits("QQuickTextEdit") && !current->property("readOnly").toBool())
        return false;
    // Of a table the keyboard has a part that Tab doesn't stop at.
    while (current && !current->activeFocusOnTab())
        current = current->parentItem();
    return !current || current == endOfChain(!forward);
}

bool PageView::eventFilter(QObject* object, QEvent* event)
{
    if (object != this)
        return false;
    if (m_blocked && isInput(event->type())) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress && onPressed)
        onPressed();
    return false;
}

void PageView::keyPressEvent(QKeyEvent* event)
{
    const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (tab && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        const bool forward = event->key() == Qt::Key_Tab && !(event->modifiers() & Qt::ShiftModifier);
        if (leavesByTab(forward)) {
            if (!onTabbedOut || !onTabbedOut(forward))
                focusEnd(forward);
            event->accept();
            return;
        }
    }
    event->setAccepted(activeFocusItem() != nullptr);
    QQuickWindow::keyPressEvent(event);
    if (!event->isAccepted() && onKey)
        onKey(*event);
    event->accept();
}

void PageView::resizeEvent(QResizeEvent* event)
{
    QQuickWindow::resizeEvent(event);
    if (m_root)
        m_root->setSize(size());
}
} // namespace workbench
