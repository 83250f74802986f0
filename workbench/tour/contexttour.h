#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the commands that draw and the panel beside them.
class ContextTour
{
public:
    /// `save` keeps a picture under a name.
    ContextTour(Driver& driver, std::function<void(const QString&)> save);

    void run();

private:
    void start(const char* command);
    void waitForPrompt(const char* prompt);
    void waitForEnd();
    void drawLines();
    void drawCircle();

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
