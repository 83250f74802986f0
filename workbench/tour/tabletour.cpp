#include "tour/tabletour.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "app/workbenchapp.h"
#include "drawing/drawingcanvas.h"
#include "host/themecolours.h"
#include "tour/driver.h"
#include "velm/bridge/conversions.h"

#include <QColor>
#include <QPoint>
#include <QVariant>

namespace workbench {
using Entities = EntityTableModel;

TableTour::TableTour(Driver& driver, std::function<void(const QString&)> save)
    : m_driver(driver), m_frame(*driver.app().frame()), m_save(std::move(save))
{}

void TableTour::check(bool holds, const QString& what)
{
    if (!holds)
        throw DriverError(QStringLiteral("this isn't so: ") + what);
}

QString TableTour::cell(int row, const char* column)
{
    const QString first = m_driver.ask([&] { return m_frame.entities().table()->index(row, 0).data().toString(); });
    return QStringLiteral("entities/%1/%2").arg(first, column);
}

QString TableTour::title(int column)
{
    return m_driver.ask([&] { return m_frame.entities().table()->headerData(column, Qt::Horizontal).toString(); });
}

void TableTour::showEntities()
{
    m_driver.ask([&] { m_frame.showPanel("Entities"); });
    // What was selected before may have been brought into view.
    m_driver.clickItem("entities");
    m_driver.key("Home");
    m_driver.waitFor("rows on the screen", [&] { return m_driver.hasItem(cell(0, "type")); });
    check(m_driver.ask([&] { return m_frame.entities().table()->rowCount() > 1; }), "the table shows entities");
}

void TableTour::sortEntities()
{
    const auto isSorted = [this](bool ascending) {
        const velm::SortFilterSelectModel* table = m_frame.entities().table();
        return table->proxySortColumn() == Entities::LengthColumn && table->ascending() == ascending;
    };
    m_driver.clickItem("header:Length");
    m_driver.waitFor("the entities from the shortest to the longest", [&] { return isSorted(true); });
    m_save("entities-from-the-shortest");
    // The shortest are too small to be seen lit up later.
    m_driver.clickItem("header:Length");
    m_driver.waitFor("the entities from the longest to the shortest", [&] { return isSorted(false); });
}

void TableTour::selectRange()
{
    const auto selected = [this] { return m_frame.selection().entities().size(); };
    const QColor accent = m_driver.ask([] { return velm::toQt(wxGuiColour(ut::EGuiColor::BlueHighlight)); });
    m_driver.ask([&] {
        m_frame.selection().clear();
        m_frame.canvas().Update(); // what was lit up until now isn't to be counted
    });
    const int before = m_driver.countPixels(m_frame.canvas(), accent.rgb());
    const int last = m_driver.ask([&] { return std::min(3, m_frame.entities().table()->rowCount() - 1); });
    m_driver.clickItem(cell(0, "type"));
    m_driver.waitFor("an entity to be selected by its row", [&] { return selected() == 1; });
    m_driver.clickItem(cell(last, "type"), 1, "shift");
    m_driver.waitFor("the rows up to the other one", [&] { return selected() == static_cast<size_t>(last + 1); });
    m_driver.waitFor("the entities to be lit up on the canvas",
                     [&] { return m_driver.countPixels(m_frame.canvas(), accent.rgb()) > before; });
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Light); });
    m_save("entities-selected-light");
    m_driver.ask([&] { m_frame.session().setTheme(ut::EGuiColorTheme::Dark); });
}

void TableTour::searchEntities()
{
    const auto rows = [this] { return m_frame.entities().table()->rowCount(); };
    const int before = m_driver.ask(rows);
    const size_t selected = m_driver.ask([&] { return m_frame.selection().entities().size(); });
    m_driver.clickItem("searchEntities");
    m_driver.type("no entity has this");
    m_driver.waitFor("an empty table", [&] { return rows() == 0; });
    m_save("entities-not-found");
    m_driver.replaceText(m_driver.ask(
        [&] { return m_frame.entities().entities()->index(0, Entities::KindColumn).data().toString().toUpper(); }));
    m_driver.waitFor("some rows", [&] { return rows() > 0 && rows() <= before; });
    m_save("entities-found");
    m_driver.key("Escape");
    m_driver.waitFor("all rows", [&] { return rows() == before; });
    check(m_driver.ask([&] { return m_frame.selection().entities().size(); }) == selected,
          "what the search had hidden is still selected");
}

void TableTour::arrangeColumns()
{
    m_driver.clickItem("header:Radius", 3);
    m_driver.placeOfItem("menu:Radius");
    m_save("columns-to-choose");
    m_driver.clickItem("menu:Radius");
    m_driver.waitFor("a column less",
                     [&] { return m_frame.entities().table()->columnCount() == Entities::ColumnCount - 1; });
    const QString moved = title(2);
    const QPoint to = m_driver.placeOfItem("header:Type");
    m_driver.drag(m_driver.placeOfItem("header:" + moved), to - QPoint(20, 0), [&] { m_save("column-dragged"); });
    m_driver.waitFor("the column in its new place", [&] { return title(1) == moved; });
}

void TableTour::fillMillionRows()
{
    const auto rows = [this] { return m_frame.parts().parts()->rowCount(); };
    m_driver.ask([&] { m_frame.showPanel("Million Rows"); });
    m_driver.clickItem("fill");
    m_driver.waitFor(
        "some rows", [&] { return rows() > 100'000; }, 60'000);
    m_driver.clickItem("stop");
    m_driver.waitFor("the filling to stop", [&] { return !m_frame.parts().isFilling(); });
    m_save("filling-stopped");
    m_driver.clickItem("fill");
    m_driver.waitFor(
        "a million rows", [&] { return rows() == 1'000'000 && !m_frame.parts().isFilling(); }, 120'000);
}

void TableTour::sortMillionRows()
{
    m_driver.clickItem("header:Value");
    m_driver.waitFor(
        "the time that it took", [&] { return m_frame.parts().timeText().startsWith("Sorted by Value"); }, 60'000);
    const auto value = [this](int row) {
        return m_frame.parts().table()->index(row, PartsModel::ValueColumn).data(Qt::EditRole).toDouble();
    };
    check(m_driver.ask([&] { return value(0) <= value(500'000) && value(500'000) <= value(999'999); }),
          "the rows are in order");
    m_driver.clickItem("searchParts");
    m_driver.type("bolt 17-3");
    m_driver.waitFor(
        "the rows that were searched for", [&] { return m_frame.parts().table()->rowCount() < 1000; }, 60'000);
    m_save("million-rows-searched");
    m_driver.key("Escape");
    m_driver.waitFor(
        "all rows", [&] { return m_frame.parts().table()->rowCount() == 1'000'000; }, 60'000);
}

void TableTour::scrollMillionRows()
{
    m_driver.clickItem("parts");
    m_driver.key("End");
    const auto current = [this] { return m_frame.parts().table()->selectionModel()->currentIndex().row(); };
    m_driver.waitFor("the last row", [&] { return current() == 999'999; });
    m_driver.key("Prior");
    m_driver.waitFor("a row before it", [&] { return current() < 999'999; });
    for (int turn = 0; turn < 5; ++turn)
        m_driver.click(m_driver.placeOfItem("parts"), 4); // the wheel
}
} // namespace workbench
