#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the colour dialog and the units of lineweights.
class ColourTour
{
public:
    /// `save` keeps a picture under a name.
    ColourTour(Driver& driver, std::function<void(const QString&)> save);

    void run();

private:
    void check(bool holds, const QString& what);
    void chooseIndexColour();
    void chooseTrueColour();
    void writeLineWeightsInInches();

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
