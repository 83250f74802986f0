#include "tour/screentour.h"

#include "app/canvastip.h"
#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "drawing/drawingcanvas.h"
#include "tour/driver.h"

#include <QPoint>
#include <QVariant>

namespace workbench {
ScreenTour::ScreenTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void ScreenTour::setTheme(bool light)
{
    m_driver.ask([&] { m_frame.session().setTheme(light ? ut::EGuiColorTheme::Light : ut::EGuiColorTheme::Dark); });
}

void ScreenTour::showTip()
{
    const QRect canvas = m_driver.rectOf(m_frame.canvas());
    const QPoint place = m_driver.ask([&] {
        QPoint last = canvas.center();
        for (int y = 0; y < canvas.height(); y += 4)
            for (int x = 0; x < canvas.width() * 2 / 3; x += 4)
                if (!m_frame.canvas().entityAt(wxPoint(x, y)).isNull())
                    last = canvas.topLeft() + QPoint(x, y);
        return last;
    });
    const auto isShown = [this] { return m_frame.canvasTip().window().isVisible(); };
    for (const bool light : {true, false}) {
        setTheme(light);
        m_driver.moveMouse(canvas.topLeft() + QPoint(2, 2));
        m_driver.waitFor("no tool tip", [&] { return !isShown(); });
        m_driver.moveMouse(place + QPoint(3, 0));
        m_driver.moveMouse(place);
        m_driver.waitFor("the tool tip of an entity", isShown);
        if (light)
            m_save("tool-tip-light");
    }
}

void ScreenTour::showScreens()
{
    m_driver.ask([&] { m_frame.showPanel("Screens"); });
    m_driver.moveMouse(m_driver.placeOfItem("screensMap"));
    m_driver.waitFor("no tool tip", [this] { return !m_frame.canvasTip().window().isVisible(); });
    m_driver.waitFor("the window on the map", [this] { return m_driver.hasItem("mappedWindow"); });
    setTheme(true);
    m_save("screens-light");
    setTheme(false);
}

void ScreenTour::openPopup()
{
    m_driver.clickItem("convert");
    m_driver.waitFor("the popup", [this] { return m_driver.hasItem("converted"); });
    setTheme(true);
    m_save("popup-light");
    setTheme(false);
    m_driver.clickItem("length");
    m_driver.replaceText("250");
    m_driver.key("Return");
    m_driver.waitFor("the length", [this] { return m_driver.property("length", "value") == 250; });
}
} // namespace workbench
