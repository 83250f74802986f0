#pragma once

#include "od/oddbobjectid.h"

#include <QPoint>
#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the panels about what is in the drawing: its structure, one branch of it, and the
/// properties of what is selected. Each step begins where the one before it ended.
class PanelTour
{
public:
    /// `save` keeps a picture under a name.
    PanelTour(Driver& driver, std::function<void(const QString&)> save);

    void showStructure();
    void pickOnCanvas();
    void useTitleMenu();
    void useSplitButton();
    void walkThroughBranches();
    void editProperty();

private:
    struct Spot
    {
        OdDbObjectId entity;
        QPoint screen;
    };

    void check(bool holds, const QString& what);
    void showPanel(const char* title);
    OdDbObjectId selected();
    /// A place on the screen where a click picks an entity that isn't selected.
    Spot findSpot();

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
