#include "tour/sheetsettour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "drawing/drawingcanvas.h"
#include "tour/driver.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace workbench {
namespace {
constexpr const char* sheet = "0\nSECTION\n2\nENTITIES\n"
                              "0\nCIRCLE\n8\n0\n10\n0\n20\n0\n40\n50\n"
                              "0\nCIRCLE\n8\n0\n10\n0\n20\n0\n40\n20\n"
                              "0\nVIEWPORT\n330\nB1\n69\n2\n40\n20\n41\n10\n12\n35\n22\n35\n45\n25\n"
                              "0\nENDSEC\n0\nSECTION\n2\nOBJECTS\n"
                              "0\nLAYOUT\n100\nAcDbLayout\n1\nModel\n71\n0\n330\nB0\n"
                              "0\nLAYOUT\n100\nAcDbLayout\n1\nQuarter\n71\n1\n330\nB1\n"
                              "0\nENDSEC\n0\nEOF\n";

void write(const QString& file)
{
    QFile sheetFile(file);
    if (!sheetFile.open(QIODevice::WriteOnly) || sheetFile.write(sheet) < 0)
        throw DriverError("a scratch file can't be written");
}
} // namespace

SheetSetTour::SheetSetTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_save(std::move(save))
{}

void SheetSetTour::click(const QString& row, int times)
{
    const QPoint place = m_driver.placeOfItem("sheets/" + row);
    for (int time = 0; time < times; ++time)
        m_driver.click(place);
}

void SheetSetTour::run()
{
    MainFrame& frame = *m_driver.app().frame();
    const auto waitForRow = [this](const QString& row) {
        m_driver.waitFor("the row " + row, [&] { return m_driver.hasItem("sheets/" + row); });
    };
    const QTemporaryDir scratch;
    const QDir folder(scratch.path());
    folder.mkpath("Project/Details");
    for (const char* name : {"Project/Sheet 10.dxf", "Project/sheet 2.dxf", "Project/Details/Bolt.dxf"})
        write(folder.filePath(name));
    const OdApDocument* before = m_driver.ask([&] { return frame.documents().current(); });
    m_driver.ask([&] { frame.showPanel("Sheet Sets"); });
    m_save("sheet-sets-empty");
    m_driver.command("SHEETS " + folder.filePath("Project"));
    waitForRow("Project");
    click("Project", 2);
    waitForRow("sheet 2.dxf (2)");
    click("sheet 2.dxf (2)", 1);
    m_driver.key("Right");
    waitForRow("Quarter");
    m_driver.drag(m_driver.placeOfItem("sheets/Quarter"), m_driver.rectOf(frame.canvas()).center());
    m_driver.waitFor("the drawing", [&] { return frame.documents().current() != before; });
    m_driver.waitFor("the layout's part of it", [&] { return !frame.canvas().isFitted(); });
    m_save("layout-on-canvas");
    m_driver.ask([&] { frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("sheet-sets-light");
    m_driver.ask([&] { frame.session().setTheme(ut::EGuiColorTheme::Dark); });

    write(folder.filePath("Project/sheet 3.dxf"));
    waitForRow("sheet 3.dxf (2)");
    m_driver.ask([&] {
        frame.documents().close();
        frame.sheetSets().removeRoot(folder.filePath("Project"));
    });
}
} // namespace workbench
