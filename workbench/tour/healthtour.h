#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the page of the drawing's health, and the help of a page.
class HealthTour
{
public:
    /// `save` keeps a picture under a name.
    HealthTour(Driver& driver, std::function<void(const QString&)> save);

    void run();

private:
    void spoilDrawing();
    void showHealth();
    void fixLines();
    void showHelp();
    int count(int task);

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
