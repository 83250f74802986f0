#pragma once

#include <QObject>
#include <QRect>
#include <QRegion>
#include <QRgb>
#include <QString>
#include <QStringList>

#include <wx/window.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <type_traits>

class QQuickItem;
class QQuickWindow;
class wxTopLevelWindow;

namespace workbench {
class PagePopup;
class PressCounter;
class WorkbenchApp;

/// What a step expected and didn't find.
class DriverError : public std::runtime_error
{
public:
    explicit DriverError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

/// Works the running program with the real mouse and keyboard of its X server, by the tool xdotool, and looks at what
/// it did. It is used on a thread of its own, so that the program's loops, also modal ones, go on; every look is taken
/// on the program's thread. Whatever doesn't come in time throws a DriverError that says what was waited for.
class Driver
{
public:
    explicit Driver(WorkbenchApp& app);
    ~Driver();

    WorkbenchApp& app() { return m_app; }

    /// Runs a function on the program's thread and gives its result; on that thread itself it is just called.
    template <typename Function>
    auto ask(Function function)
    {
        using Result = std::invoke_result_t<Function>;
        if constexpr (std::is_void_v<Result>) {
            invoke([&] { function(); });
        } else {
            Result result{};
            invoke([&] { result = function(); });
            return result;
        }
    }
    /// Waits until the program's window, or a dialog over it, is the active one, and all is in its place on the screen.
    void waitForStart();
    /// Starts a function on the program's thread without waiting for its end, since it may run a dialog.
    void start(std::function<void()> function);

    /// Waits until the condition, asked on the program's thread, holds.
    void waitFor(const QString& what, const std::function<bool()>& condition, int milliseconds = 10000);

    // Items of pages by their object names. The item is awaited, in an open popup or any page that is
    // on the screen. A cell of a table has a name of three parts, as in "layers/Walls/on": the table's, what the row
    // shows in the first column, and the id of the column.
    bool hasItem(const QString& name);
    QVariant property(const QString& name, const char* property);
    void clickItem(const QString& name, int button = 1, const QString& modifier = {});
    /// On the screen, the middle of what is seen of the item, once it stays there.
    QPoint placeOfItem(const QString& name);
    /// Whether the item or what is in it has the keyboard.
    bool itemHasFocus(const QString& name);
    /// Whether the list of a combo box is open and has the keyboard.
    bool hasOpenList(const QString& name);

    /// With a key of xdotool's name held, as "shift". Returns when the program has got the press of the button.
    void click(QPoint screen, int button = 1, const QString& modifier = {});
    void moveMouse(QPoint screen);
    /// Moves the mouse with the left button held. What is asked of `onTheWay` happens before the button is released.
    void drag(QPoint from, QPoint to, const std::function<void()>& onTheWay = {});
    void click(wxWindow& window);
    /// The window's place on the screen, in pixels.
    QRect rectOf(wxWindow& window);
    /// Keys by their names of xdotool, as in "ctrl+o" or "shift+Tab".
    void key(const QString& keys);
    void type(const QString& text);
    /// Puts the text in the place of what the focused field holds.
    void replaceText(const QString& text);
    /// Types a command into the command line.
    void command(const QString& line);

    /// The innermost modal dialog that is on the screen, or null. For use inside ask() only.
    wxTopLevelWindow* dialog();
    void waitForDialog(const QString& title);
    void waitForNoDialog();
    /// All static texts of the innermost dialog, a line each.
    QString dialogText();

    /// Presses the right mouse button there and waits for a menu with the keyboard.
    void openMenu(QPoint screen);
    bool hasMenu();
    void waitForNoMenu();
    /// What the open menus cover of the screen; empty without one.
    QRegion menuShape();

    /// A picture of the whole screen, once the program has drawn what was asked of it.
    bool savePicture(const QString& file);
    QImage picture();
    /// How many pixels of the window have about this colour.
    int countPixels(wxWindow& window, QRgb colour);

private:
    void invoke(const std::function<void()>& function);
    /// Waits until the program has nothing left to do: what it was told, also by the X server, it has done.
    void waitForRest();
    /// Null when none is open.
    PagePopup* popup();
    QQuickItem* findItem(const QString& name);
    QQuickItem* needItem(const QString& name);
    QPoint originOf(const QQuickWindow& page);

    WorkbenchApp& m_app;
    std::unique_ptr<PressCounter> m_presses;
};
} // namespace workbench
