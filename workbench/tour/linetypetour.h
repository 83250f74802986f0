#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the dialog that loads linetypes, up to dashes on the drawing.
class LineTypeTour
{
public:
    /// `save` keeps a picture under a name.
    LineTypeTour(Driver& driver, std::function<void(const QString&)> save);

    void run();

private:
    void check(bool holds, const QString& what);
    void openDialog();
    void showBadFile();
    void chooseSeveral();
    void drawDashes();

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
