#include "velm/models/contextmenu.h"

#include "velm/models/menumodel.h"

#include "od/oderror.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;
using velmtest::rowText;

namespace {
/// Writes its menu by a function and notes what it is told to run.
class FakeExecutor : public IDynamicMenuCommandExecutor
{
public:
    void executeMenuCommand(int commandId) override { commands += commandId; }
    void fillMenu(IDynamicMenu& menu) override
    {
        if (fill)
            fill(menu);
        ++fills;
    }

    std::function<void(IDynamicMenu&)> fill;
    QList<int> commands;
    int fills = 0;
};

void addEntry(IDynamicMenu& menu, const wchar_t* text, int command = 0)
{
    menu.addMenuItem(text, command, L"", L"", true, false, false);
}

/// Writes "a-b(c-)": a letter is an entry, "-" a separator, brackets hold the sub-menu that the entry before turns
/// into.
void write(IDynamicMenu& menu, const QString& rows, int& position)
{
    while (position < rows.size() && rows[position] != QLatin1Char(')')) {
        const QString text = rows[position++];
        if (text == "-") {
            menu.addMenuSeparator();
        } else if (position < rows.size() && rows[position] == QLatin1Char('(')) {
            std::unique_ptr<IDynamicMenu> subMenu = menu.createSubMenu();
            write(*subMenu, rows, ++position);
            ++position;
            menu.appendSubMenu(text.toStdWString().c_str(), std::move(subMenu), L"");
        } else {
            addEntry(menu, text.toStdWString().c_str());
        }
    }
}
} // namespace

class TestContextMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_menu.emplace();
        m_tester.emplace(&*m_menu, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_executor = {};
    }

    void cleanup()
    {
        m_tester.reset();
        m_menu.reset();
    }

    void anIconIsNamedAfterItsBitmap_data()
    {
        const auto row = velmtest::columns<QString, QString>("bitmap", "file");
        row("without its prefix and in lower case", "BMP_16_Copy", "copy.png");
        row("another name", "Paste", "paste.png");
        row("none", "", "");
        row("nothing but the prefix", "BMP_16_", ".png");
        row("a prefix in other letters is part of the name", "bmp_16_Cut", "bmp_16_cut.png");
        row("a prefix within the name", "BMP_16_BMP_16_A", "bmp_16_a.png");
    }
    void anIconIsNamedAfterItsBitmap()
    {
        QFETCH(QString, bitmap);
        ContextMenu menu(&m_executor, &*m_menu);
        menu.addMenuItem(L"text", 1, L"tip", bitmap.toStdWString().c_str(), true, false, false);
        QTEST(m_menu->index(0, 0).data(MenuModel::IconRole).toString(), "file");
    }

    void anEntryCarriesItsFlagsAndRunsItsCommand()
    {
        ContextMenu menu(&m_executor, &*m_menu);
        menu.addMenuItem(L"a", 11, L"tip", L"", false, true, true);
        menu.addMenuItem(L"b", 12, L"", L"", true, false, true);
        const MenuData* first = m_menu->getData(m_menu->index(0, 0));
        QCOMPARE(first->type, "text");
        QCOMPARE(first->tooltip, "tip");
        QCOMPARE(static_cast<int>(first->flags), 2 + 4);
        QVERIFY(!first->update && first->userData.isNull());
        // A check without a box is lost.
        QCOMPARE(static_cast<int>(m_menu->getData(m_menu->index(1, 0))->flags), 1);
        m_menu->menuItemTriggered(m_menu->index(1, 0));
        m_menu->menuItemTriggered(m_menu->index(0, 0));
        QCOMPARE(m_executor.commands, QList<int>({12, 11}));
    }

    void withoutAnExecutorCommandsDoNothing()
    {
        ContextMenu menu(nullptr, &*m_menu);
        addEntry(menu, L"a", 1);
        m_menu->menuItemTriggered(m_menu->index(0, 0));
        QCOMPARE(rowText(*m_menu, MenuModel::TextRole), "a");
    }

    void withoutAModelThereIsAnError()
    {
        const auto message = [](const auto& construct) {
            try {
                construct();
            } catch (const OdError& error) {
                return QString::fromUtf8(error.what());
            }
            return QString();
        };
        QCOMPARE(message([this] { ContextMenu(&m_executor, nullptr).addMenuSeparator(); }), "NULL pointer encountered");
        QCOMPARE(message([this] { buildContextMenu(&m_executor, nullptr, {}); }), "NULL pointer encountered");
        QCOMPARE(m_executor.fills, 0);
    }

    void onlyATopLevelMenuStartsEmpty()
    {
        m_menu->appendItem({}, MenuData("a", {}));
        ContextMenu below(&m_executor, &*m_menu, m_menu->index(0, 0));
        addEntry(below, L"b");
        ContextMenu belowAgain(&m_executor, &*m_menu, m_menu->index(0, 0));
        addEntry(belowAgain, L"c");
        QCOMPARE(rowText(*m_menu, MenuModel::TextRole), "a(b c)");
        const ContextMenu top(&m_executor, &*m_menu);
        QCOMPARE(rowText(*m_menu, MenuModel::TextRole), "");
    }

    void aSubMenuIsAPlaceholderUntilItIsHandedBack()
    {
        ContextMenu menu(&m_executor, &*m_menu);
        addEntry(menu, L"a");
        std::unique_ptr<IDynamicMenu> subMenu = menu.createSubMenu();
        const QModelIndex row = m_menu->index(1, 0);
        QCOMPARE(row.data(MenuModel::TypeRole), "submenu");
        QCOMPARE(row.data(MenuModel::TextRole), "");
        QCOMPARE(m_menu->getData(row)->flags, MenuData::Enabled);
        addEntry(*subMenu, L"b", 5);
        addEntry(*subMenu, L"c");
        addEntry(*subMenu, L"d");
        QCOMPARE(subMenu->topLevelItemsCount(), 3u);
        QCOMPARE(subMenu->totalItemsCount(), 3u);

        velmtest::SignalLog log(*m_menu);
        menu.appendSubMenu(L"More", std::move(subMenu), L"BMP_16_More");
        QCOMPARE(log.take(), "dataChanged(1,0, 1,0, [])");
        QCOMPARE(rowText(*m_menu, MenuModel::TextRole), "a More(b c d)");
        QCOMPARE(row.data(MenuModel::TypeRole), "submenu");
        // Here the icon is taken as it is.
        QCOMPARE(row.data(MenuModel::IconRole), "BMP_16_More");
        QCOMPARE(m_menu->getData(row)->flags, MenuData::Enabled);
        QCOMPARE(menu.topLevelItemsCount(), 2u);
        QCOMPARE(menu.totalItemsCount(), 5u);
        m_menu->menuItemTriggered(row);
        m_menu->menuItemTriggered(m_menu->index(0, 0, row));
        QCOMPARE(m_executor.commands, QList<int>{5});
    }

    void rowsAreCountedAtEveryDepth()
    {
        ContextMenu menu(&m_executor, &*m_menu);
        int position = 0;
        write(menu, "a(b(c-)d)e-", position);
        QCOMPARE(menu.topLevelItemsCount(), 3u);
        QCOMPARE(menu.totalItemsCount(), 7u);
        QCOMPARE(ContextMenu(&m_executor, &*m_menu, m_menu->index(0, 0)).totalItemsCount(), 4u);
    }

    void theLastRowBecomesTheSubMenuWhateverItIs()
    {
        ContextMenu menu(&m_executor, &*m_menu);
        std::unique_ptr<IDynamicMenu> subMenu = menu.createSubMenu();
        addEntry(*subMenu, L"a");
        addEntry(menu, L"between");
        menu.appendSubMenu(L"More", std::move(subMenu), L"");
        QCOMPARE(rowText(*m_menu, MenuModel::TextRole), "-(a) More");
    }

    void inAnEmptyMenuASubMenuIsOnlyDestroyed()
    {
        class Mortal : public ContextMenu
        {
        public:
            Mortal(MenuModel& model, bool& flag) : ContextMenu(nullptr, &model), isGone(flag) {}
            ~Mortal() override { isGone = true; }
            bool& isGone;
        };
        ContextMenu menu(&m_executor, &*m_menu);
        bool isGone = false;
        auto subMenu = std::make_unique<Mortal>(*m_menu, isGone);
        velmtest::SignalLog log(*m_menu);
        menu.appendSubMenu(L"More", std::move(subMenu), L"");
        QVERIFY(isGone);
        QCOMPARE(log.take(), "");
    }

    void oneSeparatorGoesFromTheEndOfEachLevel_data()
    {
        const auto row = velmtest::columns<QString, QString>("written", "kept");
        row("one at the end goes", "ab-", "a b");
        row("of two the first stays", "a--", "a -");
        row("at the start and within they stay", "-a-b", "- a - b");
        row("each level loses its own", "a(b-)-c(d(e--)f-)-", "a(b) - c(d(e -) f)");
        row("a sub-menu at the end keeps the one before it", "a-b(c)", "a - b(c)");
        row("a menu of nothing else is empty", "-", "");
        row("a sub-menu of nothing else is empty", "a(-)b", "a b");
    }
    void oneSeparatorGoesFromTheEndOfEachLevel()
    {
        QFETCH(QString, written);
        m_menu->appendItem({}, MenuData("old", {}));
        m_executor.fill = [&](IDynamicMenu& menu) {
            int position = 0;
            write(menu, written, position);
        };
        buildContextMenu(&m_executor, &*m_menu, {});
        QTEST(rowText(*m_menu, MenuModel::TextRole), "kept");
        QCOMPARE(m_executor.fills, 1);
    }

private:
    std::optional<MenuModel> m_menu;
    std::optional<QAbstractItemModelTester> m_tester;
    FakeExecutor m_executor;
};

QTEST_APPLESS_MAIN(TestContextMenu)
#include "tst_contextmenu.moc"
