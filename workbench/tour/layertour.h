#pragma once

#include <QString>

#include <functional>

class OdDbLayerTableRecord;

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the table of layers and the dialog that renames one.
class LayerTour
{
public:
    /// `save` keeps a picture under a name.
    LayerTour(Driver& driver, std::function<void(const QString&)> save);

    void switchLayer();
    void sortLayers();
    void editLayer();
    void searchLayers();
    void refuseName();
    void acceptName();

private:
    QString layerName(int row);
    QString layerCell(int row, const char* column);
    OdDbLayerTableRecord* layer(const wchar_t* name);
    void startRenaming();

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
