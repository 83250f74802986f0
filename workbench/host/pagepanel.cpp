#include "host/pagepanel.h"

#include "host/keys.h"
#include "host/pagegroup.h"
#include "host/pageloader.h"
#include "host/pageview.h"
#include "host/themecolours.h"
#include "velm/bridge/conversions.h"

#include <QQmlEngine>
#include <QQmlIncubationController>
#include <QQuickItem>

#include <wx/toplevel.h>

namespace workbench {
PagePanel::PagePanel(wxWindow* parent, PageGroup& group, const QUrl& page, QObject* controller)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS), m_group(group), m_page(page),
      m_controller(controller), m_view(std::make_unique<PageView>())
{
    m_view->onTabbedOut = [this](bool forward) { return leave(forward); };
    m_view->onKey = [this](const QKeyEvent& event) { handOn(event); };
    m_view->onPressed = [this] {
        m_clicked = true;
        focusPage();
        m_clicked = false;
    };
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        fitView();
        event.Skip();
    });
    m_group.add(this);
    reload(0);
    updateBlocking();
    m_watcher = std::make_unique<native::WindowWatcher>(
        *this, native::WindowHooks{[this](std::uintptr_t window) { attach(window); }, [this] { detach(); },
                                   [this](bool mapped) { m_view->setVisible(mapped && m_nativeParent); },
                                   [this](native::FocusRoad road) { gotFocus(road); }});
    m_focusWatcher = std::make_unique<native::FocusWidgetWatcher>(*this, [this](bool isPage) {
        if (!isPage && m_nativeParent && native::hasKeyboard(*this, m_view->winId()))
            native::takeKeyboard(*this);
    });
}

PagePanel::~PagePanel()
{
    m_group.remove(this);
    m_focusWatcher.reset();
    m_watcher.reset();
    detach();
}

QObject* PagePanel::root() const
{
    return m_view->root();
}

wxSize PagePanel::implicitSize() const
{
    const QQuickItem* item = m_view->root();
    if (!item || item->implicitWidth() <= 0 || item->implicitHeight() <= 0)
        return {};
    const double factor = m_view->devicePixelRatio() / GetContentScaleFactor();
    return velm::wxFromQt(QSizeF(item->implicitWidth(), item->implicitHeight()) * factor);
}

void PagePanel::attach(std::uintptr_t nativeWindow)
{
    m_nativeParent.reset(QWindow::fromWinId(nativeWindow));
    m_view->setParent(m_nativeParent.get());
    fitView();
}

void PagePanel::detach()
{
    // The page's window goes before the one around it: what renders it must not be left with a dead window.
    m_view->destroy();
    m_view->setParent(nullptr);
    m_nativeParent.reset();
}

void PagePanel::fitView()
{
    if (m_nativeParent)
        m_view->setGeometry(
            {QPoint(), velm::toQt(GetClientSize()) * GetContentScaleFactor() / m_view->devicePixelRatio()});
}

void PagePanel::reload(int)
{
    m_error.clear();
    m_errorSource.clear();
    m_view->setRoot(nullptr);
    QQmlEngine* engine = m_group.engine();
    if (!engine)
        return;
    m_view->setColor(qtGuiColour(ut::EGuiColor::PanelBackground));
    if (!engine->incubationController())
        engine->setIncubationController(m_view->incubationController());
    QVariantMap properties;
    if (m_controller)
        properties.insert(QStringLiteral("controller"), QVariant::fromValue(m_controller.data()));
    LoadedPage loaded = loadPage(*engine, m_page, properties);
    m_error = loaded.error;
    m_errorSource = loaded.source;
    if (loaded.root)
        m_view->setRoot(std::move(loaded.root));
    else
        showNote();
    if (onLoaded)
        onLoaded();
}

void PagePanel::showNote()
{
    const QVariantMap properties{{QStringLiteral("page"), m_page.toString()},
                                 {QStringLiteral("reason"), m_error},
                                 {QStringLiteral("source"), m_errorSource},
                                 {QStringLiteral("textColor"), qtGuiColour(ut::EGuiColor::Grey10)},
                                 {QStringLiteral("warningColor"), qtGuiColour(ut::EGuiColor::Red)}};
    m_view->setRoot(
        loadPage(*m_group.engine(), QUrl(QStringLiteral("qrc:/qt/qml/Workbench/PageNote.qml")), properties).root);
}

void PagePanel::applyTheme()
{
    m_view->setColor(qtGuiColour(ut::EGuiColor::PanelBackground));
    if (!m_error.isEmpty())
        showNote();
}

void PagePanel::updateBlocking()
{
    const bool blocked = m_group.isBlocked(*this);
    if (blocked == m_view->isBlocked())
        return;
    m_view->setBlocked(blocked);
    auto* top = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(this));
    if (!blocked && top && top->IsActive() && native::isFocusWidget(*this))
        focusPage();
}

void PagePanel::focusPage()
{
    if (!native::isFocusWidget(*this))
        native::makeFocusWidget(*this);
    if (!m_view->hasFocusItem() && !m_clicked)
        m_view->focusEnd(true);
    if (m_nativeParent)
        native::giveKeyboard(*this, m_view->winId());
}

void PagePanel::gotFocus(native::FocusRoad road)
{
    if (m_view->isBlocked() || !m_view->isVisible())
        return;
    if (road != native::FocusRoad::Other)
        m_view->focusEnd(road == native::FocusRoad::TabForward);
    focusPage();
}

bool PagePanel::leave(bool forward)
{
    // The host's toolkit doesn't notice when the keyboard moves within its window: for it the panel has it all the
    // time.
    native::moveFocus(*this, forward);
    return !native::isFocusWidget(*this);
}

void PagePanel::handOn(const QKeyEvent& event)
{
    wxKeyEvent key = toCharHook(event);
    if (key.GetKeyCode() == WXK_NONE)
        return;
    key.SetEventObject(this);
    // Queued: a command may open a dialog, and the page must not wait for its end within its own key event.
    if (const int command = m_accelerators.IsOk() ? m_accelerators.GetCommand(key) : wxNOT_FOUND;
        command != wxNOT_FOUND) {
        wxGetTopLevelParent(this)->GetEventHandler()->QueueEvent(new wxCommandEvent(wxEVT_MENU, command));
        return;
    }
    CallAfter([this, key]() mutable { ProcessWindowEvent(key); });
}

QObject* PagePanel::findInTransientPopups(const QString& objectName)
{
    return m_view->root() ? m_view->root()->findChild<QObject*>(objectName) : nullptr;
}
} // namespace workbench
