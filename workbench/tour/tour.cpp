#include "tour/tour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "host/pagepanel.h"
#include "tour/colourtour.h"
#include "tour/combotour.h"
#include "tour/contexttour.h"
#include "tour/driver.h"
#include "tour/filtertour.h"
#include "tour/healthtour.h"
#include "tour/imagetour.h"
#include "tour/layertour.h"
#include "tour/linetypetour.h"
#include "tour/paneltour.h"
#include "tour/screentour.h"
#include "tour/sheetsettour.h"
#include "tour/tabletour.h"
#include "tour/unitstour.h"
#include "velm/bridge/conversions.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QVariant>

#include <wx/notebook.h>

#include <cstdio>
#include <functional>

namespace workbench {
namespace {
constexpr const char* smallDrawing = "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n3\n"
                                     "0\nLAYER\n2\n0\n70\n0\n62\n7\n6\nCONTINUOUS\n"
                                     "0\nLAYER\n2\nOutline\n70\n0\n62\n3\n6\nCONTINUOUS\n"
                                     "0\nLAYER\n2\nHoles\n70\n0\n62\n1\n6\nCONTINUOUS\n"
                                     "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
                                     "0\nCIRCLE\n8\nOutline\n10\n0\n20\n0\n30\n0\n40\n50\n"
                                     "0\nCIRCLE\n8\nHoles\n10\n0\n20\n0\n30\n0\n40\n20\n"
                                     "0\nENDSEC\n0\nEOF\n";

/// One walk through the program.
class Tour
{
public:
    Tour(WorkbenchApp& app, const QString& folder)
        : m_driver(app), m_frame(*app.frame()), m_folder(folder),
          m_layerTour(m_driver, [this](const QString& name) { save(name); }),
          m_panelTour(m_driver, [this](const QString& name) { save(name); }),
          m_tableTour(m_driver, [this](const QString& name) { save(name); }),
          m_imageTour(m_driver, [this](const QString& name) { save(name); }),
          m_screenTour(m_driver, [this](const QString& name) { save(name); })
    {}

    int run(bool hasDrawing);

private:
    void check(bool holds, const QString& what);
    void save(const QString& name);
    QString write(const QString& name, const QByteArray& text);
    void waitForLog(const QString& text);
    void showPanel(const char* title);
    QPoint placeOfAnEntity();

    void openDrawing();
    void openContextMenu();
    void showGrid();
    void showDrawingPanel();
    void showBrokenPage();
    void switchTheme();
    void refuseDrawing();
    void rebuildEngine();
    void closeDrawing();

    Driver m_driver;
    MainFrame& m_frame;
    QString m_folder;
    LayerTour m_layerTour;
    PanelTour m_panelTour;
    TableTour m_tableTour;
    ImageTour m_imageTour;
    ScreenTour m_screenTour;
    QTemporaryDir m_scratch;
    bool m_hasDrawing = false;
    int m_step = 0;
    int m_picture = 0;
};

void Tour::check(bool holds, const QString& what)
{
    if (!holds)
        throw DriverError(QStringLiteral("this isn't so: ") + what);
}

void Tour::save(const QString& name)
{
    const QString file =
        QStringLiteral("%1/%2-%3.png").arg(m_folder).arg(++m_picture, 2, 10, QLatin1Char('0')).arg(name);
    check(m_driver.savePicture(file), "the picture can be stored: " + file);
}

QString Tour::write(const QString& name, const QByteArray& text)
{
    QFile file(m_scratch.filePath(name));
    check(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(), "a scratch file can be written");
    return file.fileName();
}

void Tour::waitForLog(const QString& text)
{
    m_driver.waitFor("the log to say: " + text,
                     [&] { return velm::toQt(m_frame.commandLine().logText()).contains(text); });
}

void Tour::showPanel(const char* title)
{
    m_driver.ask([&] { m_frame.showPanel(title); });
}

void Tour::openDrawing()
{
    m_driver.waitForStart();
    if (!m_hasDrawing)
        m_driver.command("OPEN " + write("small.dxf", smallDrawing));
    m_driver.waitFor(
        "the drawing's layers in the list", [&] { return m_frame.layers().table()->rowCount() > 2; }, 30000);
    m_driver.waitFor("the drawing on the canvas", [&] { return m_frame.canvas().drawnEntityCount() > 0; });
    m_driver.waitFor("the list on the screen", [&] { return m_driver.hasItem("layers/0/name"); });
}

/// On the screen, where a menu has room within the window.
QPoint Tour::placeOfAnEntity()
{
    const QRect canvas = m_driver.rectOf(m_frame.canvas());
    const QPoint wanted(canvas.width() / 3, canvas.height() / 5);
    return m_driver.ask([&] {
        QPoint nearest(-canvas.width(), 0);
        for (int y = 0; y < canvas.height(); y += 4)
            for (int x = 0; x < canvas.width(); x += 4)
                if ((QPoint(x, y) - wanted).manhattanLength() < (nearest - wanted).manhattanLength() &&
                    !m_frame.canvas().entityAt(wxPoint(x, y)).isNull())
                    nearest = QPoint(x, y);
        return canvas.topLeft() + nearest;
    });
}

void Tour::openContextMenu()
{
    const QPoint place = placeOfAnEntity();
    m_driver.click(place);
    m_driver.waitFor("an entity to be selected", [&] { return !m_frame.selection().current().isNull(); });
    save("entity-selected");
    m_driver.openMenu(place);
    const QRegion menu = m_driver.menuShape();
    m_driver.key("l");
    m_driver.waitFor("the layers in a sub-menu", [&] { return m_driver.menuShape() != menu; });
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    save("context-menu-light");
    check(m_driver.hasMenu(), "the menu stays open when the colours change");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
}

void Tour::showGrid()
{
    m_driver.key("Left");
    m_driver.key("g");
    m_driver.waitFor("the grid", [&] { return m_frame.canvas().isGridShown(); });
    m_driver.waitForNoMenu();
    waitForLog("> GRID");
}

void Tour::showDrawingPanel()
{
    showPanel("Drawing");
    m_driver.waitFor("the panel to name the drawing", [&] { return m_driver.hasItem("fileName"); });
}

void Tour::showBrokenPage()
{
    const QString file = write("BrokenPage.qml", "import QtQuick\n\nItem {\n    width: 10 +\n}\n");
    m_driver.command("PAGE " + file);
    m_driver.waitFor("the note in the page's place", [&] { return m_driver.hasItem("noteReason"); });
    check(m_driver.property("noteReason", "text").toString().contains("BrokenPage.qml:5"), "the note names the line");
    check(m_driver.property("noteSource", "text").toString().contains("    width: 10 +\n>5"),
          "the note shows the line");
}

void Tour::switchTheme()
{
    const auto brightness = [this] {
        const QImage picture = m_driver.picture();
        return picture.pixelColor(m_driver.rectOf(m_frame.canvas()).topLeft() + QPoint(4, 4)).lightness();
    };
    check(brightness() < 100, "the canvas is dark in the dark theme");
    m_driver.command("THEME LIGHT");
    m_driver.waitFor("the light theme", [&] { return ut::configColorTheme() == ut::EGuiColorTheme::Light; });
    save("light-theme");
    check(brightness() > 150, "the canvas is light in the light theme");
    m_driver.command("THEME DARK");
    m_driver.waitFor("the dark theme", [&] { return ut::configColorTheme() == ut::EGuiColorTheme::Dark; });
    check(brightness() < 100, "the canvas is dark again");
}

void Tour::refuseDrawing()
{
    const QString file = write("damaged.dxf", "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n 10\n1.0\n 2");
    const int layers = m_driver.ask([&] { return m_frame.layers().table()->rowCount(); });
    m_driver.command("OPEN " + file);
    m_driver.waitForDialog("Open Drawing");
    check(m_driver.dialogText().contains("damaged.dxf"), "the message names the file");
    check(m_driver.ask([&] { return m_frame.layers().table()->rowCount(); }) == layers, "the open drawing stays");
}

void Tour::rebuildEngine()
{
    m_driver.key("Return");
    m_driver.waitForNoDialog();
    m_driver.command("REBUILD");
    waitForLog("The pages run in a new engine.");
    m_driver.waitFor("the pages with what they showed", [&] { return m_driver.hasItem("layers/Toured/name"); });
}

void Tour::closeDrawing()
{
    m_driver.key("Escape");
    m_driver.key("ctrl+w");
    m_driver.waitFor("an empty list", [&] { return m_frame.layers().table()->rowCount() == 0; });
}

int Tour::run(bool hasDrawing)
{
    QDir().mkpath(m_folder);
    m_hasDrawing = hasDrawing;
    const auto layers = [this](void (LayerTour::*step)()) { return [this, step](Tour*) { (m_layerTour.*step)(); }; };
    const auto panels = [this](void (PanelTour::*step)()) { return [this, step](Tour*) { (m_panelTour.*step)(); }; };
    const auto tables = [this](void (TableTour::*step)()) { return [this, step](Tour*) { (m_tableTour.*step)(); }; };
    const auto images = [this](void (ImageTour::*step)()) { return [this, step](Tour*) { (m_imageTour.*step)(); }; };
    const auto screens = [this](void (ScreenTour::*step)()) { return [this, step](Tour*) { (m_screenTour.*step)(); }; };
    const std::pair<const char*, std::function<void(Tour*)>> steps[] = {
        {"open-drawing", &Tour::openDrawing},
        {"layers-panel", layers(&LayerTour::switchLayer)},
        {"layers-sorted", layers(&LayerTour::sortLayers)},
        {"layer-edited", layers(&LayerTour::editLayer)},
        {"layers-found-again", layers(&LayerTour::searchLayers)},
        {"context-menu", &Tour::openContextMenu},
        {"grid", &Tour::showGrid},
        {"drawing-panel", &Tour::showDrawingPanel},
        {"structure", panels(&PanelTour::showStructure)},
        {"picked-on-canvas", panels(&PanelTour::pickOnCanvas)},
        {"all-expanded", panels(&PanelTour::useTitleMenu)},
        {"zoomed-to-selection", panels(&PanelTour::useSplitButton)},
        {"property-edited", panels(&PanelTour::editProperty)},
        {"branch-above", panels(&PanelTour::walkThroughBranches)},
        {"entities", tables(&TableTour::showEntities)},
        {"entities-sorted", tables(&TableTour::sortEntities)},
        {"entities-selected", tables(&TableTour::selectRange)},
        {"entities-searched", tables(&TableTour::searchEntities)},
        {"columns-arranged", tables(&TableTour::arrangeColumns)},
        {"million-rows", tables(&TableTour::fillMillionRows)},
        {"million-rows-sorted", tables(&TableTour::sortMillionRows)},
        {"million-rows-scrolled", tables(&TableTour::scrollMillionRows)},
        {"developer-settings", images(&ImageTour::setDeveloperSettings)},
        {"image-zoomed", images(&ImageTour::placePicture)},
        {"tool-icons", images(&ImageTour::showToolIcons)},
        {"units", [this](Tour*) { UnitsTour(m_driver, [this](const QString& name) { save(name); }).run(); }},
        {"linetypes", [this](Tour*) { LineTypeTour(m_driver, [this](const QString& name) { save(name); }).run(); }},
        {"colours", [this](Tour*) { ColourTour(m_driver, [this](const QString& name) { save(name); }).run(); }},
        {"current-properties",
         [this](Tour*) {
             ComboTour(m_driver, write("other.dxf", smallDrawing), [this](const QString& name) { save(name); }).run();
         }},
        {"filter", [this](Tour*) { FilterTour(m_driver, [this](const QString& name) { save(name); }).run(); }},
        {"drawn-in-steps", [this](Tour*) { ContextTour(m_driver, [this](const QString& name) { save(name); }).run(); }},
        {"health", [this](Tour*) { HealthTour(m_driver, [this](const QString& name) { save(name); }).run(); }},
        {"sheet-sets", [this](Tour*) { SheetSetTour(m_driver, [this](const QString& name) { save(name); }).run(); }},
        {"tool-tip", screens(&ScreenTour::showTip)},
        {"screens", screens(&ScreenTour::showScreens)},
        {"popup", screens(&ScreenTour::openPopup)},
        {"broken-page", &Tour::showBrokenPage},
        {"name-refused", layers(&LayerTour::refuseName)},
        {"name-accepted", layers(&LayerTour::acceptName)},
        {"dark-theme", &Tour::switchTheme},
        {"damaged-drawing-refused", &Tour::refuseDrawing},
        {"engine-rebuilt", &Tour::rebuildEngine},
        {"drawing-closed", &Tour::closeDrawing},
    };
    for (const auto& [name, work] : steps) {
        ++m_step;
        try {
            work(this);
            save(name);
        } catch (const std::exception& problem) {
            std::fprintf(stderr, "tour: step %d, %s: %s\n", m_step, name, problem.what());
            m_driver.savePicture(m_folder + "/failure.png");
            return 1;
        }
        std::printf("%2d %s\n", m_step, name);
        std::fflush(stdout);
    }
    return 0;
}
} // namespace

int runTour(WorkbenchApp& app, const QString& folder, bool hasDrawing)
{
    return Tour(app, folder).run(hasDrawing);
}
} // namespace workbench
