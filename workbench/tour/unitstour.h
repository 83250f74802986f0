#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the page of units, the calculator and the dialog of the drawing's units.
class UnitsTour
{
public:
    /// `save` keeps a picture under a name.
    UnitsTour(Driver& driver, std::function<void(const QString&)> save);

    void run();

private:
    void check(bool holds, const QString& what);
    void showPage();
    void typeBadText();
    void calculate();
    void changeUnits();

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
