#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the bar of current properties, and through two drawings that are open at once.
class ComboTour
{
public:
    /// `save` keeps a picture under a name; `otherDrawing` is the file of a drawing that isn't open.
    ComboTour(Driver& driver, QString otherDrawing, std::function<void(const QString&)> save);

    void run();

private:
    void openList(const QString& combo, const QString& picture);
    void chooseColour();
    void chooseLinetype();
    void chooseLineWeight();
    void chooseArrowhead();
    void switchDrawings();

    Driver& m_driver;
    MainFrame& m_frame;
    QString m_otherDrawing;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
