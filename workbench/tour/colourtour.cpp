#include "tour/colourtour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/models/propertieslistmodel.h"

#include <QVariant>

#include <optional>

namespace workbench {
namespace {
constexpr unsigned byLayerAndByBlock = 1;
constexpr unsigned severalColours = 16;
constexpr unsigned none = 64;

/// A colour dialog that runs on the program's thread, and its answer.
class AskedColour
{
public:
    AskedColour(Driver& driver, const OdCmColor& initial, unsigned flags) : m_driver(driver)
    {
        m_driver.start([this, initial, flags] {
            m_answer = velm::dlgFactory()->colorDialog(nullptr, &initial, flags);
            m_isOver = true;
        });
        m_driver.waitForDialog("Select Colour");
        m_driver.waitFor("the keyboard in the colours",
                         [this] { return m_driver.itemHasFocus("hues") || m_driver.itemHasFocus("standard"); });
    }

    std::optional<OdCmColor> answer()
    {
        m_driver.waitFor("the dialog's answer", [this] { return m_isOver; });
        m_driver.waitForNoDialog();
        return m_answer;
    }

private:
    Driver& m_driver;
    std::optional<OdCmColor> m_answer;
    bool m_isOver = false;
};
} // namespace

ColourTour::ColourTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void ColourTour::run()
{
    chooseIndexColour();
    chooseTrueColour();
    writeLineWeightsInInches();
}

void ColourTour::check(bool holds, const QString& what)
{
    if (!holds)
        throw DriverError(QStringLiteral("this isn't so: ") + what);
}

void ColourTour::chooseIndexColour()
{
    AskedColour asked(m_driver, OdCmColor(OdCmColor::kByLayer), byLayerAndByBlock | severalColours | none);
    check(!m_driver.property("accept", "enabled").toBool(), "of several colours none is chosen");
    m_save("colour-dialog-varies");
    m_driver.clickItem("color140");
    m_driver.waitFor("the colour's name", [&] { return m_driver.property("newName", "text") == "Color 140"; });
    m_driver.key("Right");
    m_driver.waitFor("the next hue", [&] { return m_driver.property("newName", "text") == "Color 150"; });
    m_save("colour-dialog-dark");
    m_driver.key("Return");
    check(asked.answer() == OdCmColor::fromIndex(150), "the dialog gives the colour's index");
}

void ColourTour::chooseTrueColour()
{
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    AskedColour asked(m_driver, OdCmColor::fromIndex(7), byLayerAndByBlock);
    m_driver.clickItem("hex");
    m_driver.waitFor("the keyboard in the field", [&] { return m_driver.itemHasFocus("hex"); });
    m_driver.replaceText("#2a7f");
    m_driver.waitFor("the refusal", [&] { return !m_driver.property("accept", "enabled").toBool(); });
    m_driver.type("ff");
    m_driver.waitFor("the colour", [&] { return m_driver.property("newName", "text") == "42,127,255"; });
    m_save("colour-dialog-light");
    m_driver.key("Return");
    check(asked.answer() == OdCmColor::fromRGB(42, 127, 255), "the dialog gives the true colour");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
}

void ColourTour::writeLineWeightsInInches()
{
    using List = velm::PropertiesListModel;
    m_driver.ask([&] {
        m_frame.showPanel("Properties");
        m_frame.selection().set(m_frame.documents().current()->database()->modelSpace()->entities()[0]);
    });
    const auto offers = [&](const char* text) {
        return m_driver.ask([&] {
            const List* list = m_frame.properties().properties();
            for (int row = 0; list && row < list->rowCount(); ++row)
                if (list->data(list->index(row), List::LabelRole) == "Lineweight")
                    return list->data(list->index(row), List::ChoicesRole).toStringList().contains(text);
            return false;
        });
    };
    m_driver.command("LWUNITS INCHES");
    m_driver.waitFor("lineweights in inches", [&] { return offers("0.020\""); });
    m_driver.clickItem("property:Lineweight");
    m_save("lineweights-in-inches");
    m_driver.key("Escape");
    m_driver.command("LWUNITS MM");
    m_driver.waitFor("lineweights in millimetres", [&] { return offers("0.50 mm"); });
    m_driver.ask([&] { m_frame.selection().clear(); });
}
} // namespace workbench
