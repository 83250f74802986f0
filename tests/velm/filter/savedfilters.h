#pragma once

#include "support/fakefilterproperties.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "velm/dialogs/basedialogcontroller.h"
#include "velm/filter/filtermanagerbuttonscontroller.h"
#include "velm/filter/filtertagsmodel.h"
#include "velm/filter/ifiltermanagerfileio.h"

/// The buttons of saved filters with a host, two models and a store that answers from a script.
namespace savedfilters {
constexpr int ok = 5100;
constexpr int cancel = 5101;
constexpr int yes = 2;
constexpr int no = 8;

/// What the stores of a test share.
struct Disk
{
    QStringList log; ///< of the stores, as "save a"; "1" in front for the first store, and so on
    QStringList names;
    std::optional<velm::FilterData> loaded;
    QStringList missing;
    OdString requiredVersion;
    velm::FilterData saved;
    const velm::IEntityFilterPropertiesModel* properties = nullptr; ///< not owned; of the last save or load
    int stores = 0;
    std::vector<std::weak_ptr<std::function<void()>>> listeners;

    int listenerCount() const
    {
        return static_cast<int>(std::count_if(listeners.begin(), listeners.end(),
                                              [](const auto& listener) { return !listener.expired(); }));
    }
    void tellListeners()
    {
        for (const auto& listener : listeners)
            if (const auto call = listener.lock())
                (*call)();
    }
};

class Store : public velm::IFilterManagerFileIO
{
public:
    explicit Store(Disk& disk) : m_disk(disk), m_number(++disk.stores) {}
    ~Store() override { note("destroyed with listeners", QString::number(m_disk.listenerCount())); }

    QStringList getFilterList() const override { return m_disk.names; }
    void save(const velm::FilterData& filter, const velm::IEntityFilterPropertiesModel& properties,
              const QString& name) override
    {
        note("save", name);
        m_disk.saved = filter;
        m_disk.properties = &properties;
    }
    std::optional<velm::FilterData> load(const QString& name, const velm::IEntityFilterPropertiesModel& properties,
                                         QStringList& missingProperties, OdString& requiredVersion) override
    {
        note("load", name);
        m_disk.properties = &properties;
        missingProperties = m_disk.missing;
        requiredVersion = m_disk.requiredVersion;
        return m_disk.loaded;
    }
    void rename(const QString& oldName, const QString& newName) override { note("rename", oldName, newName); }
    void duplicate(const QString& name, const QString& newName) override { note("duplicate", name, newName); }
    void remove(const QString& name) override { note("remove", name); }
    std::shared_ptr<void> addFiltersChangedListener(std::function<void()> listener) override
    {
        auto handle = std::make_shared<std::function<void()>>(std::move(listener));
        m_disk.listeners.push_back(handle);
        return handle;
    }

private:
    void note(const QString& what, const QString& name, const QString& newName = {})
    {
        m_disk.log += QString("%1 %2 %3 %4").arg(m_number).arg(what, name, newName).trimmed();
    }

    Disk& m_disk;
    const int m_number;
};

struct Fixture
{
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    velmtest::ScopedExternalFunctions scope{functions()};
    Disk disk;
    oc::PropertyFilterFactoriesManager manager;
    velmtest::FakeFilterProperties properties{{{"", "Name", "string", {}, {}}, {"", "Size", "integer", {}, {}}},
                                              &manager};
    velm::FilterTagsModel tags{properties, nullptr};
    velm::FilterManagerButtonsController buttons;

    Fixture() { setFactory(); }
    ~Fixture() { velm::IFilterManagerFileIO::setCreateFileIOFunc({}); }
    Q_DISABLE_COPY_MOVE(Fixture)

    velm::ExternalFunctions functions()
    {
        velm::ExternalFunctions result;
        result.guiController = [this] { return &gui; };
        result.dlgFactory = [this] { return &dialogs; };
        result.getUIFullUrl = [](const QString& page) { return QUrl(page); };
        return result;
    }
    void setFactory()
    {
        velm::IFilterManagerFileIO::setCreateFileIOFunc(
            [this](const oc::PropertyFilterFactoriesManager&) { return std::make_unique<Store>(disk); });
    }
    void connectAll()
    {
        buttons.setTagsModel(&tags);
        buttons.setPropertiesModel(&properties);
    }
    QString takeLog() { return std::exchange(disk.log, {}).join(", "); }
    QStringList takeMessages() { return std::exchange(dialogs.log, {}); }
    /// What the user does in a name dialog.
    static velmtest::DialogStep type(const QString& name, int code = ok)
    {
        return {[name](velm::BaseDialogController& dialog) { dialog.setProperty("name", name); }, code};
    }
    /// The next name dialog is looked at and cancelled.
    void expectDialog(QString& texts)
    {
        gui.dialogs.push_back({{[&texts](const velm::BaseDialogController& dialog) {
                                    texts = QStringList{dialog.property("untranslatedTitle").toString(),
                                                        dialog.property("label").toString(),
                                                        dialog.property("button").toString(),
                                                        dialog.property("name").toString()}
                                                .join(" | ");
                                },
                                cancel}});
    }
    /// The name that the save dialog proposes.
    QString proposedName()
    {
        QString texts;
        expectDialog(texts);
        buttons.openSaveDialog();
        return texts.section(" | ", 3);
    }
};
} // namespace savedfilters
