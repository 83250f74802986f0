#include "tour/filtertour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "drawing/drawingcanvas.h"
#include "host/themecolours.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"
#include "velm/bridge/conversions.h"

#include <QColor>
#include <QVariant>

#include <algorithm>

namespace workbench {
FilterTour::FilterTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void FilterTour::run()
{
    m_layer = m_driver.ask([&] {
        m_frame.selection().clear();
        m_frame.showPanel("Filter");
        // The hand that types knows Latin letters only.
        const auto isTypable = [](QChar letter) { return letter.unicode() < 128; };
        for (const OdDbObjectId& id : m_frame.documents().current()->database()->modelSpace()->entities()) {
            const auto* layer = id.open<OdDbEntity>()->layerId().open<OdDbLayerTableRecord>();
            if (const QString name = velm::toQt(layer->getName()); std::ranges::all_of(name, isTypable))
                return name;
        }
        return QString();
    });
    offerProperties();
    addLayer();
    addLength();
    addColour();
    saveFilter();
    loadFilter();
}

void FilterTour::check(bool holds, const QString& what)
{
    if (!holds)
        throw DriverError(QStringLiteral("this isn't so: ") + what);
}

std::size_t FilterTour::found()
{
    return m_driver.ask([&] { return m_frame.selection().entities().size(); });
}

void FilterTour::choose(const QString& button, const QString& property)
{
    m_driver.clickItem(button);
    m_driver.waitFor("the keyboard in the search", [&] { return m_driver.itemHasFocus("propertySearch"); });
    m_driver.type(property);
    m_driver.key("Return");
    m_driver.waitFor("the editor of the condition", [&] { return m_driver.hasItem("valueEditor"); });
}

void FilterTour::finish()
{
    m_driver.clickItem("finishTag");
    m_driver.waitFor("the end of the editing", [&] { return !m_driver.hasItem("valueEditor"); });
}

void FilterTour::offerProperties()
{
    m_driver.waitFor("the invitation", [&] { return m_driver.hasItem("emptyFilter"); });
    m_save("filter-empty");
    m_driver.clickItem("addCondition0");
    m_driver.waitFor("the keyboard in the search", [&] { return m_driver.itemHasFocus("propertySearch"); });
    m_save("filter-properties");
    m_driver.type("geo le");
    m_save("filter-properties-searched");
    m_driver.key("Escape");
    m_driver.key("Escape");
    m_driver.waitFor("the end of the offer", [&] { return !m_driver.hasItem("propertySearch"); });
}

void FilterTour::addLayer()
{
    choose("addCondition0", "layer");
    m_driver.replaceText(m_layer);
    m_driver.waitFor("the entities of the layer", [&] { return found() > 0; });
    const QColor accent = m_driver.ask([] { return velm::toQt(wxGuiColour(ut::EGuiColor::BlueHighlight)); });
    m_driver.waitFor("the entities to be lit up on the canvas",
                     [&] { return m_driver.countPixels(m_frame.canvas(), accent.rgb()) > 0; });
    m_save("filter-layer");
    finish();
}

void FilterTour::addLength()
{
    const std::size_t before = found();
    choose("addCondition0", "length");
    m_driver.clickItem("operatorCombo");
    m_driver.waitFor("the operators", [&] { return m_driver.hasOpenList("operatorCombo"); });
    m_save("filter-operators");
    m_driver.key("Down");
    m_driver.key("Down");
    m_driver.key("Return");
    m_driver.clickItem("valueEditor");
    m_driver.replaceText("ten");
    m_driver.key("Return");
    m_save("filter-length-refused");
    m_driver.replaceText("1");
    m_driver.waitFor("the longer ones of them", [&] { return found() > 0 && found() <= before; });
    m_save("filter-length");
    finish();
}

void FilterTour::addColour()
{
    const std::size_t before = found();
    m_driver.clickItem("addAlternative");
    m_driver.waitFor("an alternative", [&] { return m_driver.hasItem("addCondition1"); });
    choose("addCondition1", "colour");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("filter-colours-light");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
    // By layer is what a new condition has; two rows below it is red.
    m_driver.key("space");
    m_driver.key("Down");
    m_driver.key("Down");
    m_driver.key("space");
    m_driver.waitFor("the chip of the colour", [&] {
        return m_driver.hasItem("chip1_0") && m_driver.property("chip1_0", "text") == "Colour is Red";
    });
    m_driver.waitFor("the red entities, too", [&] { return found() >= before; });
    m_save("filter-colours");
    finish();
}

void FilterTour::saveFilter()
{
    m_driver.clickItem("saveFilter");
    m_driver.waitForDialog("Save filter");
    m_driver.replaceText("what: matters");
    m_driver.key("Return");
    m_driver.waitForDialog("Error");
    m_save("filter-name-refused");
    m_driver.key("Return");
    m_driver.waitForDialog("Save filter");
    m_driver.replaceText("What matters");
    m_driver.key("Return");
    m_driver.waitForNoDialog();
    m_driver.clickItem("clearFilter");
    m_driver.waitFor("the empty filter", [&] { return m_driver.hasItem("emptyFilter"); });
}

void FilterTour::loadFilter()
{
    m_driver.ask([&] { m_frame.selection().clear(); });
    m_driver.clickItem("loadFilter");
    m_driver.waitFor("the saved filters", [&] { return m_driver.hasItem("savedFilters"); });
    m_driver.clickItem("filterMenuButton");
    m_save("filter-menu");
    m_driver.key("Escape");
    m_driver.key("Down");
    m_driver.key("Return");
    m_driver.waitFor("what the filter finds", [&] { return found() > 0; });
    check(m_driver.hasItem("chip1_0"), "the alternative is back");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("filter-loaded-light");
    m_driver.ask([&] {
        m_frame.session().setTheme(ut::EGuiColorTheme::Dark);
        m_frame.filter().tags()->clear();
        m_frame.selection().clear();
    });
}
} // namespace workbench
