#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;

/// The part of the tour through the sheet sets: a folder that is added and opened, and a layout dragged to the canvas.
/// Afterwards the drawing that was current is so again.
class SheetSetTour
{
public:
    /// `save` keeps a picture under a name.
    SheetSetTour(Driver& driver, std::function<void(const QString&)> save);

    void run();

private:
    void click(const QString& row, int times);

    Driver& m_driver;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
