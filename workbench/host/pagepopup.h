#pragma once

#include "velm/dialogs/basepopupcontroller.h"

#include <QUrl>

#include <memory>

class QWindow;
class wxWindow;

namespace workbench {
class PageGroup;
class PageView;

/// A page in a window of its own above the program's, for what opens at the mouse and goes when it has served. The
/// window is as large as the screen but has the shape of what the page shows, so that menus can stand beside each other
/// and clicks next to them reach what is there. The page's function openAt(place) is called once it is on the screen.
/// The controller's signal closed() closes the popup; it is also emitted when another window is activated. Then the
/// keyboard goes back to where it was. The closed popup keeps its page, which may still have to run what was chosen.
class PagePopup : public QObject
{
    Q_OBJECT
public:
    /// Opens at once. The window and the controller, which the page gets as its property "controller", are not owned
    /// and outlive the popup.
    PagePopup(PageGroup& group, wxWindow& owner, const QUrl& page, velm::BasePopupController& controller);
    ~PagePopup() override;

    PageView* view() const { return m_view.get(); }
    bool isOpen() const { return m_isOpen; }
    void close();
    /// Closes, and the page goes.
    void takeDown();
    void applyTheme();
    /// An object of the open page by its name, or null.
    QObject* find(const QString& objectName) const;

private:
    void open(const QUrl& page);
    void fitShape();
    void activeChanged();

    PageGroup& m_group;
    wxWindow& m_owner;
    velm::BasePopupController& m_controller;
    std::unique_ptr<QWindow> m_ownerWindow;
    std::unique_ptr<PageView> m_view;
    bool m_isOpen = false;
    bool m_askedForKeyboard = false;
    bool m_wasActive = false;
};
} // namespace workbench
