#include "tour/imagetour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "tour/driver.h"

#include <QRect>
#include <QVariant>

namespace workbench {
ImageTour::ImageTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void ImageTour::saveLight(const QString& name)
{
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save(name);
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
}

void ImageTour::setDeveloperSettings()
{
    const auto waitToRead = [this](const QString& text) {
        m_driver.waitFor("the page to read " + text,
                         [&] { return m_driver.property("devDict", "text").toString().contains(text); });
    };
    m_driver.ask([&] { m_frame.showPanel("Developer"); });
    m_driver.clickItem("setting:Show the bounds of items");
    waitToRead("bounds: true");
    m_driver.clickItem("setting:Show the count of frames");
    waitToRead("frames: true");
    saveLight("developer-settings-light");
    m_driver.clickItem("setting:Show the bounds of items");
    waitToRead("bounds: false");
    m_driver.clickItem("setting:Show the count of frames");
    waitToRead("frames: false");
    // By keyboard to the choice that follows.
    m_driver.key("Tab");
    m_driver.key("Down");
    waitToRead("chequer: 1");
}

void ImageTour::placePicture()
{
    const auto part = [this] { return m_driver.property("preview", "sourceRect").toRect(); };
    const auto place = [this] { return m_driver.property("preview", "destinationRect").toRect(); };
    m_driver.ask([&] { m_frame.showPanel("Images"); });
    m_driver.clickItem("mode:Fit");
    m_driver.waitFor("the drawing's preview, whole", [&] { return part() == QRect(0, 0, 800, 600); });
    m_save("image-fitted");
    saveLight("image-fitted-light");
    m_driver.clickItem("mode:Fill");
    m_driver.waitFor("a part of the preview", [&] { return part().width() == 800 && part().height() < 600; });
    m_save("image-filled");
    m_driver.ask([&] { m_frame.images().setSource(1); });
    m_driver.clickItem("mode:Stretch");
    m_driver.waitFor("the test card in all of the place",
                     [&] { return part() == QRect(0, 0, 160, 100) && place().topLeft() == QPoint(); });
    m_save("image-stretched");
    m_driver.clickItem("mode:Zoom");
    m_driver.waitFor("the test card in its own size", [&] { return place().size() == QSize(160, 100); });
    m_driver.clickItem("zoom");
    for (int turn = 0; turn < 4; ++turn)
        m_driver.key("Right");
    m_driver.waitFor("the test card twice as large", [&] { return place().width() == 320; });
}

void ImageTour::showToolIcons()
{
    m_driver.ask([&] { m_frame.showPanel("Tool Icons"); });
    m_driver.waitFor("the icons, or the word that there are none",
                     [&] { return m_driver.hasItem("toolIcons") || m_driver.hasItem("noToolIcons"); });
    saveLight("tool-icons-light");
}
} // namespace workbench
