#include "app/canvasmenu.h"
#include "drawing/selection.h"
#include "od/oddbdatabase.h"
#include "support/table.h"
#include "velm/bridge/conversions.h"
#include "velm/models/contextmenu.h"
#include "velm/models/menumodel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace workbench;

/// The entries of the canvas's menu and the commands behind them, without a window.
class CanvasMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_menu.reset();
        m_selection.reset();
        m_documents = std::make_unique<OdApDocManager>();
        m_selection = std::make_unique<Selection>(*m_documents);
        m_menu = std::make_unique<CanvasMenu>(*m_documents, *m_selection);
        m_menu->isGridShown = [] { return true; };
        m_menu->isSnapping = [] { return false; };
        m_menu->run = [this](const wxString& line) { m_lines << velm::toQt(line); };
        m_lines.clear();
        auto database = std::make_unique<OdDbDatabase>();
        m_database = database.get();
        m_database->setCurrentLayer(m_database->addLayer(L"Walls & doors")->objectId());
        m_documents->open(std::make_unique<OdApDocument>(L"drawing", std::move(database)));
    }

    void theMenuTellsTheStateOfThings()
    {
        build();
        QCOMPARE(rows(), QStringList({"&Erase (disabled)", "-", "&Zoom extents", "&Grid [x]", "&Snap [ ]", "-",
                                      "Current &layer {0 [ ], Walls && doors [x]}"}));

        m_selection->set(m_database->addEntity(std::make_unique<OdDbCircle>(), m_database->modelSpace())->objectId());
        m_database->setCurrentLayer(m_database->findLayer(L"0")->objectId());
        m_menu->isGridShown = [] { return false; };
        build();
        QCOMPARE(rows(), QStringList({"&Erase Circle", "-", "&Zoom extents", "&Grid [ ]", "&Snap [ ]", "-",
                                      "Current &layer {0 [x], Walls && doors [ ]}"}));
    }

    void withoutADrawingThereIsNothingToChooseFrom()
    {
        m_documents->close(m_documents->curDocument());
        build();
        QCOMPARE(rows(), QStringList({"&Erase (disabled)", "-", "&Zoom extents (disabled)", "&Grid [x]", "&Snap [ ]"}));
    }

    void anEntryRunsItsLine_data()
    {
        const auto row = velmtest::columns<QString, QString>("entry", "line");
        row("a command", "&Zoom extents", "ZOOM");
        row("a mark", "&Snap", "SNAP");
        row("a layer whose name has blanks and a mark of mnemonics", "Walls && doors", "LAYER Walls & doors");
    }
    void anEntryRunsItsLine()
    {
        QFETCH(const QString, entry);
        QFETCH(const QString, line);
        build();
        m_model.menuItemTriggered(find(entry));
        QCOMPARE(m_lines, QStringList(line));
        // An index of a menu that was shorter.
        m_menu->executeMenuCommand(99);
        QCOMPARE(m_lines.size(), 1);
    }

    void anEntryMayCloseTheDrawing()
    {
        // The line is run at once and writes the menu anew, as a host might that doesn't wait for the menu's end.
        m_menu->run = [this](const wxString& line) {
            m_documents->close(m_documents->curDocument());
            build();
            m_lines << velm::toQt(line);
        };
        build();
        m_model.menuItemTriggered(find("Walls && doors"));
        QCOMPARE(m_lines, QStringList("LAYER Walls & doors"));
        QCOMPARE(rows().size(), 5);
    }

private:
    void build() { velm::buildContextMenu(m_menu.get(), &m_model, {}); }

    /// A row as in "&Grid [x]", with its sub-menu in braces.
    QString text(const QModelIndex& index) const
    {
        if (index.data(velm::MenuModel::TypeRole) == "separator")
            return QStringLiteral("-");
        QString text = index.data(velm::MenuModel::TextRole).toString();
        if (index.data(velm::MenuModel::CheckableRole).toBool())
            text += index.data(velm::MenuModel::CheckedRole).toBool() ? " [x]" : " [ ]";
        if (!index.data(velm::MenuModel::EnabledRole).toBool())
            text += " (disabled)";
        return m_model.hasChildren(index) ? text + " {" + rows(index).join(", ") + "}" : text;
    }

    QStringList rows(const QModelIndex& parent = {}) const
    {
        QStringList rows;
        for (int row = 0; row < m_model.rowCount(parent); ++row)
            rows << text(m_model.index(row, 0, parent));
        return rows;
    }

    /// The first row of that text, at any depth.
    QModelIndex find(const QString& text, const QModelIndex& parent = {}) const
    {
        for (int row = 0; row < m_model.rowCount(parent); ++row) {
            const QModelIndex index = m_model.index(row, 0, parent);
            if (index.data(velm::MenuModel::TextRole) == text)
                return index;
            if (const QModelIndex below = find(text, index); below.isValid())
                return below;
        }
        return {};
    }

    velm::MenuModel m_model;
    QAbstractItemModelTester m_tester{&m_model, QAbstractItemModelTester::FailureReportingMode::QtTest};
    std::unique_ptr<OdApDocManager> m_documents;
    std::unique_ptr<Selection> m_selection;
    std::unique_ptr<CanvasMenu> m_menu;
    OdDbDatabase* m_database = nullptr; // not owned
    QStringList m_lines;
};

QTEST_GUILESS_MAIN(CanvasMenuTest)
#include "tst_canvasmenu.moc"
