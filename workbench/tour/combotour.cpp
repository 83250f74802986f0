#include "tour/combotour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "drawing/drawingcanvas.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"

#include <QFileInfo>
#include <QVariant>

namespace workbench {
ComboTour::ComboTour(Driver& driver, QString otherDrawing, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_otherDrawing(std::move(otherDrawing)), m_save(std::move(save))
{}

void ComboTour::run()
{
    m_driver.ask([&] {
        m_frame.showPanel("Drawing");
        m_frame.selection().clear();
    });
    chooseColour();
    chooseLinetype();
    chooseLineWeight();
    chooseArrowhead();
    switchDrawings();
}

void ComboTour::openList(const QString& combo, const QString& picture)
{
    m_driver.clickItem(combo);
    m_driver.waitFor("the list", [&] { return m_driver.hasItem("rows"); });
    m_driver.key("Down");
    m_save(picture);
}

void ComboTour::chooseColour()
{
    openList("colorCombo", "current-colours");
    m_driver.type("mag");
    m_driver.key("Return");
    m_driver.waitFor("the current colour", [&] {
        return m_frame.documents().current()->database()->getCECOLOR() == OdCmColor::fromIndex(6);
    });
    m_driver.ask([&] {
        const OdArray<OdDbObjectId>& entities = m_frame.documents().current()->database()->modelSpace()->entities();
        m_frame.selection().set({entities[0], entities[1]}, entities[0]);
        if (auto* first = entities[0].open<OdDbEntity>())
            first->setColor(OdCmColor::fromRGB(255, 128, 0));
        if (auto* second = entities[1].open<OdDbEntity>())
            second->setLineWeight(100);
        m_frame.drawingChanged();
    });
    m_driver.waitFor("the rows of several values",
                     [&] { return m_driver.property("colorCombo", "currentName") == "*Varies*"; });
    m_save("several-values");
    m_driver.ask([&] { m_frame.selection().clear(); });
}

void ComboTour::chooseLinetype()
{
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    openList("lineTypeCombo", "current-linetypes-light");
    m_driver.key("Escape");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
    openList("lineTypeCombo", "current-linetypes");
    m_driver.type("cont");
    m_driver.key("Return");
    m_driver.waitFor("the current linetype", [&] {
        const OdDbDatabase* database = m_frame.documents().current()->database();
        return database->getCELTYPE() == database->findLinetype(L"Continuous")->objectId();
    });
}

void ComboTour::chooseLineWeight()
{
    openList("lineWeightCombo", "current-lineweights");
    m_driver.key("Home");
    m_driver.key("Return");
    m_driver.waitFor("the current lineweight", [&] {
        return m_frame.documents().current()->database()->getCELWEIGHT() == OdDb::kLnWtByLwDefault;
    });
}

void ComboTour::chooseArrowhead()
{
    openList("arrowHeadCombo", "current-arrowheads");
    m_driver.type("dot");
    m_driver.key("Return");
    m_driver.waitFor("the current arrowhead", [&] {
        const OdDbDatabase* database = m_frame.documents().current()->database();
        return database->getDIMSTYLE().open<OdDbDimStyleTableRecord>()->dimldrblk().iCompare(L"_Dot") == 0;
    });
    openList("arrowHeadCombo", "arrowhead-chosen");
    m_driver.key("End");
    m_driver.key("Return");
    m_driver.waitForDialog("Arrowheads");
    m_driver.waitFor("the current arrowhead in the dialog",
                     [&] { return m_driver.property("arrowheads", "currentIndex") == 3; });
    m_save("arrowhead-dialog");
    m_driver.key("Escape");
    m_driver.waitForNoDialog();
}

void ComboTour::switchDrawings()
{
    const OdApDocument* first = m_driver.ask([&] { return m_frame.documents().current(); });
    m_driver.command("OPEN " + m_otherDrawing);
    m_driver.waitFor("the other drawing", [&] { return m_frame.documents().current() != first; });
    m_driver.waitFor("its tab", [&] { return m_driver.hasItem("tab:" + QFileInfo(m_otherDrawing).fileName()); });
    m_save("two-drawings");
    m_driver.clickItem("close:" + QFileInfo(m_otherDrawing).fileName());
    m_driver.waitFor("the first drawing", [&] { return m_frame.documents().current() == first; });
}
} // namespace workbench
