#include "tour/layertour.h"

#include "app/mainframe.h"
#include "app/workbenchapp.h"
#include "drawing/drawingcanvas.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"

#include <QGuiApplication>
#include <QVariant>

namespace workbench {
LayerTour::LayerTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

QString LayerTour::layerName(int row)
{
    return m_driver.ask([&] { return m_frame.layers().table()->index(row, 0).data().toString(); });
}

QString LayerTour::layerCell(int row, const char* column)
{
    return QStringLiteral("layers/%1/%2").arg(layerName(row), column);
}

OdDbLayerTableRecord* LayerTour::layer(const wchar_t* name)
{
    return m_driver.ask([&] { return m_frame.documents().current()->database()->findLayer(name); });
}

void LayerTour::switchLayer()
{
    const size_t before = m_driver.ask([&] { return m_frame.canvas().drawnEntityCount(); });
    m_driver.clickItem(layerCell(1, "on"));
    m_driver.waitFor("fewer entities on the canvas", [&] { return m_frame.canvas().drawnEntityCount() < before; });
    m_save("a-layer-switched-off");
    m_driver.clickItem(layerCell(1, "on"));
    m_driver.waitFor("all entities on the canvas", [&] { return m_frame.canvas().drawnEntityCount() == before; });
}

void LayerTour::sortLayers()
{
    const QString first = layerName(0);
    const QString last = layerName(m_driver.ask([&] { return m_frame.layers().table()->rowCount() - 1; }));
    m_driver.clickItem("header:Name");
    m_driver.waitFor("the layers from the last name to the first", [&] { return layerName(0) == last; });
    m_save("layers-from-the-end");
    m_driver.clickItem("header:Name");
    m_driver.waitFor("the layers from the first name to the last", [&] { return layerName(0) == first; });
}

void LayerTour::editLayer()
{
    m_driver.clickItem(layerCell(1, "name"));
    m_driver.key("F2");
    m_driver.waitFor("the keyboard in the name", [&] { return m_driver.itemHasFocus("editor"); });
    m_driver.replaceText("Edited in the table");
    m_driver.waitFor("the name in the cell",
                     [&] { return m_driver.property("editor", "text") == "Edited in the table"; });
    m_save("layer-name-in-place");
    m_driver.key("Return");
    m_driver.waitFor("the name in the drawing", [&] { return layer(L"Edited in the table") != nullptr; });
    m_driver.waitFor("the row where it was", [&] { return layerName(1) == "Edited in the table"; });
    m_driver.clickItem(layerCell(1, "color"));
    m_driver.waitFor("the colours", [&] { return m_driver.hasOpenList("choice"); });
    m_save("layer-colours-to-choose");
    m_driver.key("Home");
    m_driver.key("Return");
    m_driver.waitFor("the colour in the drawing",
                     [&] { return layer(L"Edited in the table")->color() == OdCmColor::fromIndex(1); });
}

void LayerTour::searchLayers()
{
    m_driver.clickItem("search");
    m_driver.type("EDITED");
    m_driver.waitFor("the layer alone", [&] { return m_frame.layers().table()->rowCount() == 1; });
    m_save("layers-searched");
    m_driver.key("Escape");
    m_driver.waitFor("all layers", [&] { return m_frame.layers().table()->rowCount() > 2; });
}

void LayerTour::startRenaming()
{
    m_driver.clickItem(layerCell(1, "name"));
    m_driver.clickItem("rename");
    m_driver.waitForDialog("Rename Layer");
    m_driver.waitFor("the keyboard in the name field", [&] { return m_driver.itemHasFocus("name"); });
}

void LayerTour::refuseName()
{
    m_driver.command("PAGE");
    m_driver.ask([&] { m_frame.showPanel("Layers"); });
    startRenaming();
    m_save("name-dialog");
    m_driver.replaceText("0");
    m_driver.waitFor("the name in the field", [&] { return m_driver.property("name", "text") == "0"; });
    m_driver.key("Return");
    m_driver.waitFor("the refusal", [&] { return m_driver.dialogText().contains("already"); });
}

void LayerTour::acceptName()
{
    m_driver.key("Return");
    m_driver.waitForDialog("Rename Layer");
    m_driver.waitFor("the keyboard in the name field again", [&] { return m_driver.itemHasFocus("name"); });
    m_driver.replaceText("Toured");
    m_driver.waitFor("the name in the field", [&] { return m_driver.property("name", "text") == "Toured"; });
    m_driver.clickItem("accept");
    m_driver.waitForNoDialog();
    m_driver.waitFor("the new name in the list", [&] { return m_driver.hasItem("layers/Toured/name"); });
    m_driver.waitFor("the keyboard in the panel again", [] { return QGuiApplication::focusWindow() != nullptr; });
}
} // namespace workbench
