#include "tour/driver.h"

#include "app/mainframe.h"
#include "app/workbenchapp.h"
#include "command/commandline.h"
#include "host/pagegroup.h"
#include "host/pagepanel.h"
#include "host/pagepopup.h"
#include "host/pageview.h"
#include "tour/finditem.h"
#include "tour/presscounter.h"
#include "tour/xdotool.h"
#include "velm/bridge/conversions.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QQuickItem>
#include <QScreen>
#include <QThread>
#include <QVariant>

#include <wx/dialog.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cmath>
#include <exception>

namespace workbench {
namespace {
constexpr int pollInterval = 20;    // milliseconds
constexpr int longestStart = 60000; // milliseconds

/// Whether two colours look the same.
bool isClose(QRgb left, QRgb right)
{
    constexpr int most = 24;
    return std::abs(qRed(left) - qRed(right)) < most && std::abs(qGreen(left) - qGreen(right)) < most &&
           std::abs(qBlue(left) - qBlue(right)) < most;
}

void collectTexts(const wxWindow& window, QString& texts)
{
    for (const wxWindow* child : window.GetChildren()) {
        if (const auto* text = dynamic_cast<const wxStaticText*>(child))
            texts += velm::toQt(text->GetLabel()) + '\n';
        collectTexts(*child, texts);
    }
}
} // namespace

Driver::Driver(WorkbenchApp& app) : m_app(app), m_presses(ask([] { return std::make_unique<PressCounter>(); }))
{}

Driver::~Driver()
{
    m_presses.release()->deleteLater();
}

void Driver::waitForStart()
{
    // The window manager gives the focus last, so that where it puts the window is known by then.
    waitFor(
        "the program's window", [this] { return m_app.frame()->IsActive() || (dialog() && dialog()->IsActive()); },
        longestStart);
    waitFor(
        "the pages on the screen",
        [this] {
            const std::vector<PagePanel*>& pages = m_app.pages().pages();
            return std::all_of(pages.begin(), pages.end(), [](const PagePanel* page) {
                return !page->IsShownOnScreen() || page->view()->isExposed();
            });
        },
        longestStart);
    waitForRest();
}

void Driver::waitForRest()
{
    // The host's toolkit lays out windows with the next of its frames, which comes within this time, and has no rest
    // while one is due.
    QThread::msleep(pollInterval);
    const unsigned before = ask([this] {
        wxWakeUpIdle();
        return m_app.restCount();
    });
    waitFor("the program to have done all that it had to do", [&] { return m_app.restCount() != before; });
}

void Driver::invoke(const std::function<void()>& function)
{
    if (QThread::currentThread() == qApp->thread())
        return function();
    std::exception_ptr exception;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            try {
                function();
            } catch (...) {
                exception = std::current_exception();
            }
        },
        Qt::BlockingQueuedConnection);
    if (exception)
        std::rethrow_exception(exception);
}

void Driver::start(std::function<void()> function)
{
    QMetaObject::invokeMethod(qApp, std::move(function), Qt::QueuedConnection);
}

void Driver::waitFor(const QString& what, const std::function<bool()>& condition, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!ask(condition)) {
        if (timer.elapsed() > milliseconds)
            throw DriverError(QStringLiteral("waited in vain for this: ") + what);
        QThread::msleep(pollInterval);
    }
}

PagePopup* Driver::popup()
{
    PagePopup* popup = m_app.pages().popup();
    return popup && popup->isOpen() ? popup : nullptr;
}

QQuickItem* Driver::findItem(const QString& name)
{
    if (const QStringList parts = name.split('/'); parts.size() == 3) {
        QQuickItem* table = findItem(parts[0]);
        const auto* model = table ? table->property("model").value<QAbstractItemModel*>() : nullptr;
        return model ? findCell(table, *model, parts[1], parts[2]) : nullptr;
    }
    QQuickItem* hidden = nullptr;
    if (const PagePopup* open = popup())
        if (QQuickItem* item = findBelow(open->view()->contentItem(), name, hidden))
            return item;
    // The popups of pages.
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (auto* page = qobject_cast<QQuickWindow*>(window); page && page->isVisible())
            if (QQuickItem* item = findBelow(page->contentItem(), name, hidden))
                return item;
    for (PagePanel* page : m_app.pages().pages())
        if (page->IsShownOnScreen())
            if (QQuickItem* item = findBelow(page->view()->contentItem(), name, hidden))
                return item;
    return hidden;
}

QQuickItem* Driver::needItem(const QString& name)
{
    QQuickItem* item = findItem(name);
    if (!item)
        throw DriverError(QStringLiteral("there is no item \"%1\" on the screen").arg(name));
    return item;
}

QPoint Driver::originOf(const QQuickWindow& page)
{
    for (const PagePanel* panel : m_app.pages().pages())
        if (panel->view() == &page)
            return velm::toQt(panel->ClientToScreen(wxPoint()));
    return page.position() * page.devicePixelRatio();
}

bool Driver::hasItem(const QString& name)
{
    return ask([&] { return findItem(name) != nullptr; });
}

QVariant Driver::property(const QString& name, const char* property)
{
    waitFor(QStringLiteral("the item \"%1\"").arg(name), [&] { return findItem(name) != nullptr; });
    return ask([&] { return needItem(name)->property(property); });
}

bool Driver::itemHasFocus(const QString& name)
{
    return ask([&] {
        const QQuickItem* item = findItem(name);
        return item && item->hasActiveFocus();
    });
}

bool Driver::hasOpenList(const QString& name)
{
    if (!itemHasFocus(name))
        return false;
    const auto* list = property(name, "popup").value<QObject*>();
    return list && list->property("opened").toBool();
}

void Driver::clickItem(const QString& name, int button, const QString& modifier)
{
    click(placeOfItem(name), button, modifier);
}

QPoint Driver::placeOfItem(const QString& name)
{
    // Where it is now may not be where it stays: a page that was just made is laid out on its first frame.
    waitForRest();
    QPoint place;
    waitFor(QStringLiteral("the item \"%1\" to be enabled and in its place").arg(name), [&] {
        const QQuickItem* item = findItem(name);
        if (!item || !item->isEnabled() || item->width() <= 0)
            return false;
        const QRectF part = visiblePart(*item);
        if (part.isEmpty())
            return false;
        const QPoint now = originOf(*item->window()) + (part.center() * item->window()->devicePixelRatio()).toPoint();
        return std::exchange(place, now) == now;
    });
    return place;
}

void Driver::click(QPoint screen, int button, const QString& modifier)
{
    QStringList arguments = {"mousemove", QString::number(screen.x()), QString::number(screen.y())};
    const QStringList press = {"click", QString::number(button)};
    arguments += modifier.isEmpty() ? press : QStringList{"keydown", modifier} + press + QStringList{"keyup", modifier};
    const unsigned before = ask([this] { return m_presses->count(); });
    xdotool(arguments);
    // The window manager keeps a click back until it has given the window the keyboard. What is typed in between goes
    // to that window instead of to the page in it. A wheel presses nothing.
    if (button <= 3)
        waitFor("the click to arrive", [&] { return m_presses->count() != before; });
}

void Driver::moveMouse(QPoint screen)
{
    xdotool({"mousemove", QString::number(screen.x()), QString::number(screen.y())});
}

void Driver::drag(QPoint from, QPoint to, const std::function<void()>& onTheWay)
{
    constexpr int steps = 8;
    QStringList arguments = {"mousemove", QString::number(from.x()), QString::number(from.y()), "mousedown", "1"};
    for (int step = 1; step <= steps; ++step) {
        const QPoint place = from + (to - from) * step / steps;
        arguments += {"mousemove", QString::number(place.x()), QString::number(place.y()), "sleep", "0.02"};
    }
    xdotool(arguments);
    if (onTheWay)
        onTheWay();
    xdotool({"mouseup", "1"});
}

QRect Driver::rectOf(wxWindow& window)
{
    return ask([&] {
        const double scale = window.GetContentScaleFactor();
        return QRect(velm::toQt(window.GetScreenPosition()) * scale, velm::toQt(window.GetSize()) * scale);
    });
}

void Driver::click(wxWindow& window)
{
    waitForRest();
    QRect place;
    waitFor("a window to be in its place", [&] {
        const QRect now = rectOf(window);
        return window.IsShownOnScreen() && std::exchange(place, now) == now;
    });
    click(place.center());
}

void Driver::key(const QString& keys)
{
    xdotool({"key", keys});
}

void Driver::type(const QString& text)
{
    xdotool({"type", "--delay", "5", "--", text});
}

void Driver::replaceText(const QString& text)
{
    key("ctrl+a");
    type(text);
}

void Driver::command(const QString& line)
{
    wxTextCtrl* input = m_app.frame()->commandLine().input();
    click(*input);
    waitFor("the command line to have the focus", [&] { return input->HasFocus(); });
    replaceText(line);
    waitFor("the command to be typed", [&] { return velm::toQt(input->GetValue()) == line; });
    key("Return");
}

wxTopLevelWindow* Driver::dialog()
{
    wxDialog* top = m_app.pages().modals().top();
    return top && top->IsShown() ? top : nullptr;
}

void Driver::waitForDialog(const QString& title)
{
    waitFor(QStringLiteral("the dialog \"%1\"").arg(title), [&] {
        const wxTopLevelWindow* top = dialog();
        return top && top->IsShownOnScreen() && velm::toQt(top->GetTitle()) == title && dialog()->IsActive();
    });
}

void Driver::waitForNoDialog()
{
    waitFor("no dialog", [&] { return dialog() == nullptr && m_app.pages().modals().top() == nullptr; });
}

QString Driver::dialogText()
{
    return ask([&] {
        QString texts;
        if (const wxTopLevelWindow* top = dialog())
            collectTexts(*top, texts);
        return texts;
    });
}

void Driver::openMenu(QPoint screen)
{
    click(screen, 3);
    waitFor("a menu with the keyboard", [&] {
        // At first the popup has the shape of a single pixel.
        return popup() && popup()->view()->isActive() && popup()->view()->mask().boundingRect().width() > 1;
    });
}

bool Driver::hasMenu()
{
    return ask([&] { return popup() != nullptr; });
}

void Driver::waitForNoMenu()
{
    waitFor("no menu", [&] { return popup() == nullptr; });
}

QRegion Driver::menuShape()
{
    return ask([&] {
        const PageView* view = popup() ? popup()->view() : nullptr;
        return view ? view->mask().translated(view->position()) : QRegion();
    });
}

QImage Driver::picture()
{
    // Two frames of every page: the first takes over what changed, the second shows that it reached the screen.
    ask([&] {
        for (PagePanel* page : m_app.pages().pages())
            if (page->IsShownOnScreen()) {
                page->view()->update();
                page->Update();
            }
        if (const PagePopup* open = popup())
            open->view()->update();
    });
    return ask([] { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); });
}

bool Driver::savePicture(const QString& file)
{
    // The screen is at rest when two pictures in a row are the same, apart from a blinking cursor.
    QImage last = picture();
    for (int tries = 0; tries < 20; ++tries) {
        QThread::msleep(pollInterval * 3);
        const QImage next = picture();
        if (next == last)
            break;
        last = next;
    }
    // Of the whole screen, what the program's window covers.
    const wxRect frame = ask([&] { return m_app.frame() ? m_app.frame()->GetScreenRect() : wxRect(); });
    const QRect part = QRect(frame.x, frame.y, frame.width, frame.height).intersected(last.rect());
    return (part.isEmpty() ? last : last.copy(part)).save(file);
}

int Driver::countPixels(wxWindow& window, QRgb colour)
{
    const QImage part = picture().copy(rectOf(window)).convertToFormat(QImage::Format_RGB32);
    int count = 0;
    for (int y = 0; y < part.height(); ++y)
        for (int x = 0; x < part.width(); ++x)
            count += isClose(part.pixel(x, y), colour) ? 1 : 0;
    return count;
}
} // namespace workbench
