#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through what stands above the program's window: the tool tip of the canvas, and the page of
/// screens with its popup.
class ScreenTour
{
public:
    /// `save` keeps a picture under a name.
    ScreenTour(Driver& driver, std::function<void(const QString&)> save);

    void showTip();
    void showScreens();
    void openPopup();

private:
    void setTheme(bool light);

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
