#include "tour/contexttour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "drawing/drawingcanvas.h"
#include "tour/driver.h"

#include <QVariant>

namespace workbench {
ContextTour::ContextTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void ContextTour::run()
{
    drawLines();
    drawCircle();
}

void ContextTour::start(const char* command)
{
    m_driver.command(command);
    m_driver.waitFor("the command's panel", [&] {
        return m_driver.hasItem("commandName") && m_driver.property("commandName", "text") == command;
    });
}

void ContextTour::waitForPrompt(const char* prompt)
{
    m_driver.waitFor(prompt, [&] { return m_driver.property("prompt", "text") == prompt; });
}

void ContextTour::waitForEnd()
{
    m_driver.waitFor("the command's end", [&] { return !m_frame.commandRun().isRunning(); });
    m_driver.waitFor("the panel to go", [&] { return !m_driver.hasItem("commandName"); });
}

void ContextTour::drawLines()
{
    start("LINE");
    const QRect canvas = m_driver.rectOf(m_frame.canvas());
    const auto place = [&](double across, double down) {
        return canvas.topLeft() + QPoint(qRound(across * canvas.width()), qRound(down * canvas.height()));
    };
    m_driver.click(place(0.3, 0.7));
    waitForPrompt("Next point");
    m_driver.click(place(0.5, 0.2));
    m_driver.waitFor("the first line", [&] {
        return m_driver.property("option:Undo", "enabled").toBool() && !m_frame.commandRun().isPicking();
    });
    m_driver.clickItem("commandPick");
    m_driver.waitFor("a panel that waits", [&] { return m_frame.commandRun().isPicking(); });
    m_driver.moveMouse(place(0.7, 0.7));
    m_save("panel-waits-for-a-point");
    m_driver.click(place(0.7, 0.7));
    m_driver.waitFor("the option to close", [&] { return m_driver.property("option:Close", "enabled").toBool(); });
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("line-panel-light");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
    for (int point = 0; point < 3; ++point)
        m_driver.clickItem("option:Undo");
    waitForPrompt("First point");
    m_driver.clickItem("commandFinish");
    waitForEnd();
}

void ContextTour::drawCircle()
{
    start("CIRCLE");
    m_driver.click(m_driver.rectOf(m_frame.canvas()).center());
    waitForPrompt("Radius");
    m_driver.clickItem("option:Diameter");
    waitForPrompt("Diameter");
    m_driver.moveMouse(m_driver.rectOf(m_frame.canvas()).center() + QPoint(90, 0));
    m_save("circle-diameter");
    m_driver.clickItem("closeCommand");
    waitForEnd();
}
} // namespace workbench
