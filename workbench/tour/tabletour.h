#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the wide tables below the drawing: its entities, and a million rows. Each step begins
/// where the one before it ended.
class TableTour
{
public:
    /// `save` keeps a picture under a name.
    TableTour(Driver& driver, std::function<void(const QString&)> save);

    void showEntities();
    void sortEntities();
    void selectRange();
    void searchEntities();
    void arrangeColumns();
    void fillMillionRows();
    void sortMillionRows();
    void scrollMillionRows();

private:
    void check(bool holds, const QString& what);
    /// The name of a cell in the table of entities, for the driver.
    QString cell(int row, const char* column);
    QString title(int column);

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
