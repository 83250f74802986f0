#pragma once

#include "od/oddbdatabase.h"
#include "support/fakehost.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/linetypemodel.h"

/// What the tests of linetype combos share.
namespace linetypecombo {
using namespace velm;

inline const QString reset = "modelAboutToBeReset modelReset";
inline const QString resetWithRow = "modelAboutToBeReset currentIndexChanged modelReset";
inline const QString chosen = "currentIndexChanged currentLineTypeChanged";

inline std::unique_ptr<OdDbDatabase> drawing(std::initializer_list<const wchar_t*> more = {})
{
    auto database = std::make_unique<OdDbDatabase>();
    for (const wchar_t* name : more)
        database->addLinetype(name);
    return database;
}

inline OdDbObjectId idOf(const OdDbDatabase& database, const char* name)
{
    const auto* record = database.findLinetype(name);
    return record ? record->objectId() : OdDbObjectId();
}

/// A host that lists all linetypes of a drawing, with local names in lower case.
struct Fixture
{
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    std::shared_ptr<OdDbDatabase> database = drawing();
    OdApDocManager manager;
    QStringList listed; ///< the arguments of each list
    OdArray<OdDbObjectId> first;
    bool succeeds = true;
    std::weak_ptr<void> keptAlive;
    int namedTooLate = 0;

    Fixture()
    {
        gui.lineTypes = [this](OdDbDatabase* from, bool noSecond, OdDbObjectId& id, bool noFirst,
                               LoadedLineTypes& loaded) {
            listed += QString("%1 %2 %3").arg(noSecond).arg(id.isNull() ? "-" : "id").arg(noFirst);
            loaded.ids = first;
            for (const OdDbLinetypeTableRecord* record : from->linetypes())
                loaded.ids.append(record->objectId());
            loaded.keepAlive = std::make_shared<int>();
            keptAlive = loaded.keepAlive;
            return succeeds;
        };
        gui.localName = [this](const OdString& stored) {
            namedTooLate += keptAlive.expired();
            return odFromQt(toQt(stored).toLower());
        };
    }

    std::unique_ptr<LineTypeModel> model(int firstOption = 0, int secondOption = 0)
    {
        return std::make_unique<LineTypeModel>(LineTypeModelParams{database.get(), firstOption, secondOption}, gui,
                                               dialogs, QSize(60, 8), [this] { return &manager; });
    }
    OdDbObjectId id(const char* name) const { return idOf(*database, name); }
    /// What the next dialog does: loads linetypes into the drawing, and says so or has been cancelled.
    void willLoad(QStringList names, bool accepted = true)
    {
        dialogs.loadLineTypes = [this, names, accepted](OdArray<OdString>& loaded) {
            for (const QString& name : names) {
                database->addLinetype(odFromQt(name));
                loaded.append(odFromQt(name.toLower()));
            }
            return accepted;
        };
    }
    OdApDocument* open(const wchar_t* name, std::initializer_list<const wchar_t*> more = {})
    {
        return manager.open(std::make_unique<OdApDocument>(name, drawing(more)));
    }
};

/// "byblock bylayer* continuous Load...", the current row with a star.
inline QString text(const LineTypeModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows += model.index(row, 0).data(256).toString() + (row == model.getCurrentIndex() ? "*" : "");
    return rows.join(' ');
}
} // namespace linetypecombo
