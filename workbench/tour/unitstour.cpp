#include "tour/unitstour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "od/oddbdatabase.h"
#include "tour/driver.h"

#include <QVariant>

namespace workbench {
UnitsTour::UnitsTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void UnitsTour::run()
{
    showPage();
    typeBadText();
    calculate();
    changeUnits();
}

void UnitsTour::check(bool holds, const QString& what)
{
    if (!holds)
        throw DriverError(QStringLiteral("this isn't so: ") + what);
}

void UnitsTour::showPage()
{
    m_driver.ask([&] {
        m_frame.showPanel("Units");
        m_frame.session().setTheme(ut::EGuiColorTheme::Light);
    });
    m_driver.waitFor("the field", [&] { return m_driver.hasItem("length"); });
    m_save("units-light");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
    m_save("units-dark");
}

void UnitsTour::typeBadText()
{
    m_driver.clickItem("length");
    m_driver.waitFor("the keyboard in the field", [&] { return m_driver.itemHasFocus("length"); });
    m_driver.replaceText("4 apples");
    m_driver.key("Return");
    m_driver.waitFor("the mark", [&] { return !m_driver.property("length", "error").toString().isEmpty(); });
    check(m_driver.property("length", "text") == "4 apples", "the text stays to be mended");
    m_save("bad-text-marked");
    m_driver.key("Escape");
    m_driver.waitFor("the value", [&] { return m_driver.property("length", "error").toString().isEmpty(); });
}

void UnitsTour::calculate()
{
    m_driver.clickItem("calculator");
    m_driver.waitForDialog("Calculator");
    m_driver.waitFor("the keyboard in the expression", [&] { return m_driver.itemHasFocus("expression"); });
    m_driver.replaceText("2 * (3 + sqrt(20.25)");
    m_driver.waitFor("the problem", [&] { return m_driver.hasItem("problem"); });
    m_save("calculator-refuses");
    m_driver.type(")");
    m_driver.waitFor("the result", [&] { return m_driver.property("result", "text") == "= 15"; });
    m_save("calculator");
    m_driver.key("Return");
    m_driver.waitForNoDialog();
    m_driver.waitFor("the result in the field", [&] { return m_frame.units().length()->getValue() == 15.0; });
}

void UnitsTour::changeUnits()
{
    const QString before = m_driver.property("length", "text").toString();
    m_driver.command("UNITS");
    m_driver.waitForDialog("Drawing Units");
    m_driver.waitFor("the keyboard in the list", [&] { return m_driver.itemHasFocus("linearKind"); });
    // From the end of the list one up: architectural.
    m_driver.key("End");
    m_driver.key("Up");
    m_driver.waitFor("the sample",
                     [&] { return m_driver.property("linearSample", "text").toString().startsWith("3'-5"); });
    m_save("units-dialog");
    m_driver.key("Return");
    m_driver.waitForNoDialog();
    m_driver.waitFor("the field in feet and inches",
                     [&] { return m_driver.property("length", "text").toString() == "1'-3\""; });
    check(before != "1'-3\"", "the field was written otherwise before");
}
} // namespace workbench
