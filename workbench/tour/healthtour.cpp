#include "tour/healthtour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"

#include <QPoint>
#include <QVariant>

namespace workbench {
HealthTour::HealthTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void HealthTour::run()
{
    spoilDrawing();
    showHealth();
    fixLines();
    showHelp();
}

int HealthTour::count(int task)
{
    return m_frame.health().tasks()->data(task, HealthTaskModel::CountRole).toInt();
}

void HealthTour::spoilDrawing()
{
    m_driver.ask([&] {
        OdDbDatabase* database = m_frame.documents().current()->database();
        database->addLayer(L"Nothing here");
        OdDbLayerTableRecord* locked = database->addLayer(L"Locked");
        locked->setIsLocked(true);
        for (const double x : {10.0, 25.0, 40.0}) {
            auto line = std::make_unique<OdDbLine>();
            line->startPoint = line->endPoint = {x, 20.0, 0.0};
            if (x > 25.0)
                line->setLayer(locked->objectId());
            database->addEntity(std::move(line), database->modelSpace());
        }
        m_frame.drawingChanged();
    });
}

void HealthTour::showHealth()
{
    m_driver.command("HEALTH");
    m_driver.clickItem("task:Empty layers");
    m_driver.waitFor("the empty layer", [&] { return count(0) > 0 && m_driver.hasItem("finding:0"); });
    m_save("health-empty-layers");
}

void HealthTour::fixLines()
{
    m_driver.clickItem("task:Zero-length lines");
    m_driver.waitFor("the lines", [&] { return m_frame.health().currentTask() == 1 && count(1) >= 3; });
    m_driver.clickItem("selectFindings");
    m_driver.waitFor("the lines to be selected", [&] { return m_frame.selection().entities().size() >= 3; });
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("health-lines-selected-light");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
    m_driver.clickItem("fixFindings");
    m_driver.waitFor("the line on the locked layer", [&] { return count(1) == 1; });
    m_save("health-line-left");
    m_driver.ask([&] {
        m_frame.documents().current()->database()->findLayer(L"Locked")->setIsLocked(false);
        m_frame.drawingChanged();
    });
    m_driver.clickItem("fixFindings");
    m_driver.waitFor("no such lines", [&] { return count(1) == 0; });
    m_save("health-lines-fixed");
    m_driver.command("ZOOM");
}

void HealthTour::showHelp()
{
    m_driver.moveMouse(m_driver.placeOfItem("panelHelpButton"));
    m_driver.waitFor("the address of the page", [&] {
        return m_driver.property("panelHelpButton", "hovered").toBool() &&
               m_driver.property("panelHelpButton", "address").toString().endsWith("/docs/health.html");
    });
}
} // namespace workbench
