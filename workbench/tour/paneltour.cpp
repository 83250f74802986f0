#include "tour/paneltour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "host/themecolours.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"
#include "velm/bridge/conversions.h"

#include <QVariant>

#include <cmath>

namespace workbench {
namespace {
using velm::PropertiesListModel;
} // namespace

PanelTour::PanelTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void PanelTour::check(bool holds, const QString& what)
{
    if (!holds)
        throw DriverError(QStringLiteral("this isn't so: ") + what);
}

void PanelTour::showPanel(const char* title)
{
    m_driver.ask([&] { m_frame.showPanel(title); });
}

OdDbObjectId PanelTour::selected()
{
    return m_driver.ask([&] { return m_frame.selection().current(); });
}

PanelTour::Spot PanelTour::findSpot()
{
    const QRect canvas = m_driver.rectOf(m_frame.canvas());
    const Spot spot = m_driver.ask([&] {
        const OdDbObjectId current = m_frame.selection().current();
        for (int y = canvas.height() * 3 / 5; y < canvas.height(); y += 2)
            for (int x = canvas.width() / 3; x < canvas.width(); x += 2) {
                const OdDbObjectId entity = m_frame.canvas().entityAt(wxPoint(x, y));
                if (!entity.isNull() && entity != current && !entity.open<OdDbBlockReference>())
                    return Spot{entity, canvas.topLeft() + QPoint(x, y)};
            }
        return Spot();
    });
    check(!spot.entity.isNull(), "another entity can be picked in the lower half of the canvas");
    return spot;
}

void PanelTour::showStructure()
{
    showPanel("Structure");
    showPanel("Properties");
    m_driver.clickItem("structure");
    m_driver.waitFor("the keyboard in the tree", [&] { return m_driver.itemHasFocus("structure"); });
    // Down into the group of layouts, the model space, and to its first entity.
    for (const char* key : {"Home", "Right", "Right", "Right"})
        m_driver.key(key);
    m_driver.waitFor("an entity to be selected by its row", [&] { return !m_frame.selection().current().isNull(); });
    const QColor accent = m_driver.ask([] { return velm::toQt(wxGuiColour(ut::EGuiColor::BlueHighlight)); });
    m_driver.waitFor("the entity to be lit up on the canvas",
                     [&] { return m_driver.countPixels(m_frame.canvas(), accent.rgb()) > 0; });
}

void PanelTour::pickOnCanvas()
{
    const Spot spot = findSpot();
    m_driver.click(spot.screen);
    m_driver.waitFor("the picked entity to be the tree's current row",
                     [&] { return m_frame.structure().currentObject() == spot.entity; });
    m_driver.waitFor("the row on the screen",
                     [&] { return m_driver.property("structure", "currentRow").toInt() >= 0; });
    check(m_driver.ask([&] { return m_frame.properties().object(); }) == spot.entity,
          "the properties are those of the picked entity");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("picked-on-canvas-light");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
}

void PanelTour::useTitleMenu()
{
    const auto rows = [this] { return m_driver.property("structure", "count").toInt(); };
    const int before = rows();
    m_driver.clickItem("panelMenuButton");
    m_driver.waitFor("the panel's menu", [&] { return m_driver.property("panelMenuButton", "down").toBool(); });
    m_save("panel-menu");
    m_driver.key("Down");
    m_driver.key("Return");
    m_driver.waitFor("more rows in the tree", [&] { return rows() > before; });
}

void PanelTour::useSplitButton()
{
    m_driver.clickItem("arrow");
    m_driver.waitFor("the menu of actions", [&] { return m_driver.property("arrow", "down").toBool(); });
    m_save("split-button-menu");
    m_driver.key("Escape");
    m_driver.clickItem("action");
    m_driver.waitFor("the command in the log",
                     [&] { return velm::toQt(m_frame.commandLine().logText()).contains("> ZOOM SELECTION"); });
}

void PanelTour::editProperty()
{
    constexpr QRgb magenta = qRgb(255, 0, 255);
    constexpr int magentaIndex = 6;
    m_driver.command("ZOOM");
    const OdDbObjectId id = selected();
    check(!id.isNull(), "an entity is still selected");
    const int wanted = m_driver.ask([&] {
        const PropertiesListModel* list = m_frame.properties().properties();
        for (int row = 0; row < list->rowCount(); ++row)
            if (list->data(list->index(row), PropertiesListModel::LabelRole) == "Colour")
                return static_cast<int>(list->data(list->index(row), PropertiesListModel::ChoicesRole)
                                            .toStringList()
                                            .indexOf("Magenta")) -
                       list->data(list->index(row), PropertiesListModel::ValueRole).toInt();
        return 0;
    });
    const int rows = m_driver.property("structure", "count").toInt();
    m_driver.clickItem("property:Colour");
    m_save("colours-to-choose");
    // The mouse lies over the choices; without them the arrows go through all in turn.
    m_driver.key("Escape");
    for (int step = 0; step < std::abs(wanted); ++step)
        m_driver.key(wanted > 0 ? "Down" : "Up");
    m_driver.waitFor("the colour in the drawing",
                     [&] { return id.open<OdDbEntity>()->color() == OdCmColor::fromIndex(magentaIndex); });
    // Each edit has the tree filled anew.
    check(m_driver.property("structure", "count").toInt() == rows, "the rows of the tree are open as they were");
    // It shows once it isn't lit up any more.
    const int before = m_driver.countPixels(m_frame.canvas(), magenta);
    m_driver.ask([&] { m_frame.selection().clear(); });
    m_driver.waitFor("the colour on the canvas",
                     [&] { return m_driver.countPixels(m_frame.canvas(), magenta) > before; });
    check(m_driver.hasItem("noProperties"), "no properties are shown without a selection");
}

void PanelTour::walkThroughBranches()
{
    showPanel("Branch");
    m_driver.clickItem("branch");
    m_driver.waitFor("the keyboard in the branch", [&] { return m_driver.itemHasFocus("branch"); });
    const auto crumbs = [this] { return m_driver.ask([&] { return m_frame.branch().crumbs().size(); }); };
    m_driver.key("Home");
    m_driver.key("Return");
    m_driver.waitFor("the branch of layouts", [&] { return m_frame.branch().crumbs().size() == 2; });
    m_driver.key("Return");
    m_driver.waitFor("the branch of the model space", [&] { return m_frame.branch().crumbs().size() == 3; });
    m_save("branch");
    m_driver.clickItem("up");
    m_driver.waitFor("the branch above", [&] { return m_frame.branch().crumbs().size() == 2; });
    check(crumbs() == 2, "one level up");
}
} // namespace workbench
