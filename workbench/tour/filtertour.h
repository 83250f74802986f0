#pragma once

#include <QString>

#include <functional>

namespace workbench {
class Driver;
class MainFrame;

/// The part of the tour through the filter of entities: "layer is A and length > 10, or colour is red", saved, loaded
/// and edited in place.
class FilterTour
{
public:
    /// `save` keeps a picture under a name.
    FilterTour(Driver& driver, std::function<void(const QString&)> save);

    void run();

private:
    void check(bool holds, const QString& what);
    void offerProperties();
    void addLayer();
    void addLength();
    void addColour();
    void saveFilter();
    void loadFilter();
    void choose(const QString& button, const QString& property);
    void finish();
    std::size_t found();

    Driver& m_driver;
    MainFrame& m_frame;
    std::function<void(const QString&)> m_save;
    QString m_layer;
};
} // namespace workbench
