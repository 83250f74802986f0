#pragma once

#include "host/hostpage.h"
#include "host/nativewindow.h"

#include <QPointer>
#include <QSizeF>
#include <QString>
#include <QUrl>

#include <wx/accel.h>
#include <wx/panel.h>

#include <functional>
#include <memory>

class QKeyEvent;
class QWindow;

namespace workbench {
class PageGroup;
class PageView;

/// A window of the host with a page of QML in it. The page gets the controller as its property "controller". A page
/// that can't be loaded is logged, and a readable note stands in its place. The panel's native window may come and go,
/// by the host or from outside: the page lives on without one.
class PagePanel : public wxPanel, public HostPage
{
public:
    /// The page is loaded at once. The controller is not owned and may be null.
    PagePanel(wxWindow* parent, PageGroup& group, const QUrl& page, QObject* controller);
    ~PagePanel() override;

    /// The page's root, or that of the note in its place; not owned; null without an engine.
    QObject* root() const;
    PageView* view() const { return m_view.get(); }
    const QUrl& page() const { return m_page; }
    /// Why the page isn't shown; empty when it is.
    const QString& error() const { return m_error; }
    /// What the page asks for, in the host's pixels; empty when it doesn't say.
    wxSize implicitSize() const;
    std::function<void()> onLoaded; ///< a page, or the note in its place, was loaded anew
    void updateBlocking();
    void applyTheme();
    /// Gives the keyboard to the page.
    void focusPage();

    void reload(int reason) override;
    void setAcceleratorTable(const wxAcceleratorTable& table) override { m_accelerators = table; }
    QObject* findInTransientPopups(const QString& objectName) override;

private:
    void attach(std::uintptr_t nativeWindow);
    void detach();
    void fitView();
    void gotFocus(native::FocusRoad road);
    bool leave(bool forward);
    void handOn(const QKeyEvent& event);
    void showNote();

    PageGroup& m_group;
    QUrl m_page;
    QPointer<QObject> m_controller; // not owned
    QString m_error;
    QString m_errorSource;
    wxAcceleratorTable m_accelerators;
    std::unique_ptr<QWindow> m_nativeParent;
    std::unique_ptr<PageView> m_view;
    std::unique_ptr<native::WindowWatcher> m_watcher;
    std::unique_ptr<native::FocusWidgetWatcher> m_focusWatcher;
    bool m_clicked = false; // while a click in the page gives it the focus
};
} // namespace workbench
