#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the developer settings, the image preview and the tool icons. Each step begins where
/// the one before it ended.
class ImageTour
{
public:
    /// `save` keeps a picture under a name.
    ImageTour(Driver& driver, std::function<void(const QString&)> save);

    void setDeveloperSettings();
    void placePicture();
    void showToolIcons();

private:
    void saveLight(const QString& name);

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
};
} // namespace workbench
