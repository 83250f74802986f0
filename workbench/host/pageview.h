#pragma once

#include <QKeyEvent>
#include <QQuickWindow>

#include <functional>
#include <memory>

namespace workbench {
/// The Qt window of one page: it keeps the page's root item at its own size, hands on what the page doesn't take, and
/// takes no input while it is blocked. It knows nothing of the window around it.
class PageView : public QQuickWindow
{
    Q_OBJECT
public:
    PageView();
    ~PageView() override;

    /// Shows the item in place of the former one; null leaves the view empty.
    void setRoot(std::unique_ptr<QQuickItem> root);
    QQuickItem* root() const { return m_root.get(); }

    /// A blocked view swallows mouse, keys, wheel and touch and doesn't take the focus on a click.
    void setBlocked(bool blocked);
    bool isBlocked() const { return m_blocked; }

    /// Gives the focus to the page's first item that Tab reaches, or to its last one.
    void focusEnd(bool first);
    /// Whether one of the page's items has the page's focus, or gets it when the page becomes active.
    bool hasFocusItem() const;

    std::function<void()> onPressed;             ///< a mouse button went down in the page
    std::function<bool(bool)> onTabbedOut;       ///< Tab went past the end (true) or the beginning; true when it left
    std::function<void(const QKeyEvent&)> onKey; ///< a key that the page doesn't take

protected:
    /// Sees the input of the view before an open popup of the page does.
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool leavesByTab(bool forward) const;
    QQuickItem* endOfChain(bool first) const;

    std::unique_ptr<QQuickItem> m_root;
    bool m_blocked = false;
};
} // namespace workbench
