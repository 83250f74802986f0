#include "shownfilter.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "velm/dialogs/basedialogcontroller.h"
#include "velm/filter/filteroperatorsmodel.h"
#include "velm/filter/ifiltermanagerfileio.h"

#include <map>

using namespace velm;
using velmtest::FilterProperties;
using velmtest::ShownFilter;

namespace {
using Listener = std::function<void()>;

/// The saved filters in memory, which outlive their store.
struct Saved
{
    std::map<QString, FilterData> filters;
    std::weak_ptr<Listener> listener;

    void tell() const
    {
        if (const auto told = listener.lock())
            (*told)();
    }
};

class MemoryStore : public IFilterManagerFileIO
{
public:
    explicit MemoryStore(Saved& saved) : m_saved(saved) {}

    QStringList getFilterList() const override
    {
        QStringList names;
        for (const auto& [name, filter] : m_saved.filters)
            names += name;
        return names;
    }
    void save(const FilterData& filter, const IEntityFilterPropertiesModel& /*properties*/,
              const QString& name) override
    {
        m_saved.filters[name] = filter;
        m_saved.tell();
    }
    std::optional<FilterData> load(const QString& name, const IEntityFilterPropertiesModel& /*properties*/,
                                   QStringList& /*missingProperties*/, OdString& /*requiredVersion*/) override
    {
        return m_saved.filters.at(name);
    }
    void rename(const QString& oldName, const QString& newName) override
    {
        duplicate(oldName, newName);
        remove(oldName);
    }
    void duplicate(const QString& name, const QString& newName) override
    {
        m_saved.filters[newName] = m_saved.filters.at(name);
        m_saved.tell();
    }
    void remove(const QString& name) override
    {
        m_saved.filters.erase(name);
        m_saved.tell();
    }
    std::shared_ptr<void> addFiltersChangedListener(std::function<void()> listener) override
    {
        auto handle = std::make_shared<Listener>(std::move(listener));
        m_saved.listener = handle;
        return handle;
    }

private:
    Saved& m_saved;
};

const FilterData longOnes = {{{FilterProperties::Length, FilterOperatorsModel::Greater, 10.0}}};
const FilterData circles = {{{FilterProperties::Type, FilterOperatorsModel::Is, 1}}};
} // namespace

/// Saving and loading filters in the panel, with a host that answers the dialogs.
class TestSavedFilters : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        ExternalFunctions functions;
        functions.guiController = [this] { return &m_gui; };
        functions.dlgFactory = [this] { return &m_dialogs; };
        functions.getUIFullUrl = [](const QString& page) { return QUrl(page); };
        m_functions = std::make_unique<velmtest::ScopedExternalFunctions>(functions);
        m_saved = {{{"Circles", circles}, {"Long ones", longOnes}}, {}};
        IFilterManagerFileIO::setCreateFileIOFunc(
            [this](const oc::PropertyFilterFactoriesManager&) { return std::make_unique<MemoryStore>(m_saved); });
        m_buttons = std::make_unique<FilterManagerButtonsController>();
    }

    void cleanup()
    {
        IFilterManagerFileIO::setCreateFileIOFunc({});
        m_buttons.reset();
        m_functions.reset();
    }

    void aFilterIsSavedAndLoadedAgain()
    {
        m_saved.filters.clear();
        ShownFilter filter(m_buttons.get());
        QVERIFY(!filter.item("saveFilter")->isEnabled());
        QVERIFY(!filter.item("loadFilter")->isEnabled());
        filter.tags.setFilter(circles);
        QVERIFY(filter.item("saveFilter")->isEnabled());
        answer("Mine");
        filter.click("saveFilter");
        QCOMPARE(names(), QStringList{"Mine"});
        QVERIFY(filter.item("loadFilter")->isEnabled());
        filter.tags.clear();
        openList(filter);
        filter.clickRow("savedFilters", "Mine");
        QTRY_VERIFY(!filter.isOpen("savedFiltersPopup"));
        QCOMPARE(filter.tags.getFilter(), circles);
        QCOMPARE(filter.text(), "Type is Circle");
    }

    void theListIsWorkedByTheKeyboard()
    {
        ShownFilter filter(m_buttons.get());
        filter.shown().press(Qt::Key_Tab);
        QCOMPARE(filter.shown().focusItem()->objectName(), "loadFilter");
        filter.shown().press(Qt::Key_Return);
        QTRY_VERIFY(filter.isOpen("savedFiltersPopup"));
        filter.shown().press(Qt::Key_L);
        filter.shown().press(Qt::Key_Return);
        QTRY_COMPARE(filter.tags.getFilter(), longOnes);
        QTRY_COMPARE(filter.shown().focusItem()->objectName(), "loadFilter");
        filter.shown().press(Qt::Key_Space);
        QTRY_VERIFY(filter.isOpen("savedFiltersPopup"));
        // The menu of the current row, by keys alone.
        filter.shown().press(Qt::Key_Home);
        filter.shown().press(Qt::Key_Right);
        QTRY_VERIFY(filter.isOpen("filterMenu"));
        filter.shown().press(Qt::Key_Escape);
        QTRY_VERIFY(!filter.isOpen("filterMenu"));
        QVERIFY(filter.isOpen("savedFiltersPopup"));
        filter.shown().press(Qt::Key_Right);
        QTRY_VERIFY(filter.isOpen("filterMenu"));
        m_dialogs.answers = {{2, false}};
        filter.shown().press(Qt::Key_Down);
        filter.shown().press(Qt::Key_Return);
        QTRY_COMPARE(names(), QStringList{"Long ones"});
        QTRY_COMPARE(filter.rows("savedFilters"), names());
        filter.shown().press(Qt::Key_Escape);
        QTRY_VERIFY(!filter.isOpen("savedFiltersPopup"));
    }

    void aFilterIsRenamedInItsMenu()
    {
        ShownFilter filter(m_buttons.get());
        openList(filter);
        filter.clickRow("savedFilters", "Long ones", "filterMenuButton");
        QTRY_VERIFY(filter.isOpen("filterMenu"));
        answer("Short & long");
        filter.click("menu:Rename");
        QTRY_COMPARE(names(), (QStringList{"Circles", "Short & long"}));
        // The list is shown again, with the new name; a "&" is no mnemonic.
        QVERIFY(filter.isOpen("savedFiltersPopup"));
        QTRY_COMPARE(filter.rows("savedFilters"), (QStringList{"Circles", "Short && long"}));
        filter.clickRow("savedFilters", "Short && long");
        QTRY_COMPARE(filter.tags.getFilter(), longOnes);
        // An answer that comes when the list is closed shows it, too.
        auto* loader = m_buttons->getLoadFilterController();
        QTRY_VERIFY(!filter.isOpen("savedFiltersPopup"));
        QMetaObject::invokeMethod(loader, "openPopup");
        QTRY_VERIFY(filter.isOpen("savedFiltersPopup"));
    }

    void aFilterIsDuplicatedInItsMenu()
    {
        ShownFilter filter(m_buttons.get());
        openList(filter);
        filter.clickRow("savedFilters", "Circles", "filterMenuButton");
        QTRY_VERIFY(filter.isOpen("filterMenu"));
        filter.click("menu:Duplicate");
        QTRY_COMPARE(names().size(), 3);
        QTRY_COMPARE(filter.rows("savedFilters"), names());
        QVERIFY(filter.isOpen("savedFiltersPopup"));
        QCOMPARE(filter.tags.getFilter(), FilterData(1));
    }

    void theListClosesWithItsLastFilter()
    {
        m_saved.filters.erase("Circles");
        ShownFilter filter(m_buttons.get());
        openList(filter);
        filter.clickRow("savedFilters", "Long ones", "filterMenuButton");
        QTRY_VERIFY(filter.isOpen("filterMenu"));
        // No leaves all as it is.
        m_dialogs.answers = {{8, false}, {2, false}};
        filter.click("menu:Remove");
        QTRY_COMPARE(m_dialogs.answers.size(), std::size_t(1));
        QVERIFY(filter.isOpen("savedFiltersPopup"));
        filter.clickRow("savedFilters", "Long ones", "filterMenuButton");
        QTRY_VERIFY(filter.isOpen("filterMenu"));
        filter.click("menu:Remove");
        QTRY_VERIFY(!filter.isOpen("savedFiltersPopup"));
        QCOMPARE(names(), QStringList());
        QVERIFY(!filter.item("loadFilter")->isEnabled());
    }

    void theListFollowsTheStore()
    {
        ShownFilter filter(m_buttons.get());
        openList(filter);
        m_saved.filters["Blocks"] = longOnes;
        m_saved.tell();
        QTRY_COMPARE(filter.rows("savedFilters"), (QStringList{"Blocks", "Circles", "Long ones"}));
    }

private:
    /// The next name dialog gets this name and is accepted.
    void answer(const QString& name)
    {
        m_gui.dialogs.push_back(
            {{[name](BaseDialogController& controller) { controller.setProperty("name", name); }, 5100}});
    }
    QStringList names() const
    {
        QStringList names;
        for (const auto& [name, filter] : m_saved.filters)
            names += name;
        return names;
    }
    void openList(ShownFilter& filter)
    {
        filter.click("loadFilter");
        QTRY_VERIFY(filter.isOpen("savedFiltersPopup"));
        QTRY_COMPARE(filter.rows("savedFilters"), names());
    }

    velmtest::FakeGuiController m_gui;
    velmtest::FakeDialogFactory m_dialogs;
    std::unique_ptr<velmtest::ScopedExternalFunctions> m_functions;
    Saved m_saved;
    std::unique_ptr<FilterManagerButtonsController> m_buttons;
};

PAGE_TEST_MAIN(TestSavedFilters)
#include "tst_savedfilters.moc"
