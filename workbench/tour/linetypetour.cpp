#include "tour/linetypetour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QVariant>

namespace workbench {
LineTypeTour::LineTypeTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void LineTypeTour::run()
{
    showBadFile();
    chooseSeveral();
    drawDashes();
}

void LineTypeTour::check(bool holds, const QString& what)
{
    if (!holds)
        throw DriverError(QStringLiteral("this isn't so: ") + what);
}

void LineTypeTour::openDialog()
{
    m_driver.command("LINETYPE");
    m_driver.waitForDialog("Load Linetypes");
    m_driver.waitFor("the keyboard in the list", [&] { return m_driver.itemHasFocus("lineTypes"); });
}

void LineTypeTour::showBadFile()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("own.lin"));
    check(file.open(QIODevice::WriteOnly) && file.write("*RAIL,Rails\nA,4,-1,0.5,-1\n"
                                                        "*WATER,With letters\nA,4,-1,[\"W\",Standard],-1\n"
                                                        "*RAIL,Again\nA,1,-1\nnonsense\n") > 0,
          "a scratch file can be written");
    file.close();
    for (const QString& path : {file.fileName(), folder.filePath("missing.lin")}) {
        m_driver.start([&, path] {
            OdArray<OdString> loaded;
            velm::dlgFactory()->loadLineTypesDialog(nullptr, m_frame.documents().current()->database(), loaded,
                                                    velm::wxFromQt(path), {});
        });
        m_driver.waitForDialog("Load Linetypes");
        if (path == file.fileName()) {
            m_driver.waitFor("the lines that were skipped", [&] {
                return m_driver.hasItem("problems") &&
                       m_driver.property("problems", "text").toString().count('\n') == 2;
            });
            m_save("linetypes-of-a-bad-file");
        } else {
            m_driver.waitFor("the reason", [&] { return m_driver.hasItem("error"); });
            m_save("linetypes-of-no-file");
        }
        m_driver.key("Escape");
        m_driver.waitForNoDialog();
    }
}

void LineTypeTour::chooseSeveral()
{
    openDialog();
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("linetypes-light");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
    m_driver.clickItem("lineTypes/AXIS-FINE/description");
    m_driver.clickItem("lineTypes/CUT/line", 1, "ctrl");
    m_save("linetypes-chosen");
    m_driver.clickItem("accept");
    m_driver.waitForNoDialog();
    const auto record = [this](const wchar_t* name) {
        return m_frame.documents().current()->database()->findLinetype(name);
    };
    check(m_driver.ask([&] { return record(L"AXIS-FINE") && record(L"CUT") && !record(L"AXIS"); }),
          "the chosen linetypes are in the drawing, and no other one");
    openDialog();
    m_save("linetypes-loaded");
    m_driver.key("Escape");
    m_driver.waitForNoDialog();
}

void LineTypeTour::drawDashes()
{
    OdDbDatabase* database = m_driver.ask([&] { return m_frame.documents().current()->database(); });
    const auto picture = [this] { return m_driver.picture().copy(m_driver.rectOf(m_frame.canvas())); };
    const auto setLayers = [&](const std::function<OdDbObjectId(std::size_t)>& lineType) {
        m_driver.ask([&] {
            const auto layers = database->layers();
            for (std::size_t i = 0; i < layers.size(); ++i)
                layers[i]->setLinetypeObjectId(lineType(i));
            m_frame.drawingChanged();
        });
    };
    std::vector<OdDbObjectId> before;
    m_driver.ask([&] {
        for (const OdDbLayerTableRecord* layer : database->layers())
            before.push_back(layer->linetypeObjectId());
    });
    m_driver.command("ZOOM");
    const QImage plain = picture();
    setLayers([&](std::size_t) { return database->findLinetype(L"AXIS-FINE")->objectId(); });
    // Dashes of some thirty pixels.
    const double pixelsPerUnit = m_driver.ask([&] { return m_frame.canvas().view().scale; });
    m_driver.command(QStringLiteral("LTSCALE %1").arg(30 / 9.0 / pixelsPerUnit));
    m_driver.waitFor("dashes on the drawing", [&] { return picture() != plain; });
    m_save("linetypes-on-the-drawing");
    setLayers([&](std::size_t i) { return before[i]; });
    m_driver.command("LTSCALE 1");
}
} // namespace workbench
