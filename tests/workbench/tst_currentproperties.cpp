#include "house.h"
#include "od/oddbdimension.h"
#include "props/currentpropertiescontroller.h"
#include "support/fakehost.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/arrowheadmodel.h"
#include "velm/drawingprops/colormodel.h"
#include "velm/drawingprops/linetypemodel.h"
#include "velm/drawingprops/lineweightmodel.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;

namespace {
/// A host with linetypes and lineweights.
class Gui : public velmtest::FakeGuiController
{
public:
    velm::ColorDescription describeColor(const OdCmColor& color, wxColour, bool, int) override
    {
        return {false, color.isByLayer() ? wxString("ByLayer") : wxString::Format("%d", color.colorIndex()), {}};
    }
    OdString linetypeLocalName(const OdString& name) const override { return name; }
    bool loadLineTypes(OdDbDatabase* database, bool, OdDbObjectId&, bool, velm::LoadedLineTypes& loaded) override
    {
        for (const OdDbLinetypeTableRecord* linetype : database->linetypes())
            loaded.ids.append(linetype->objectId());
        return true;
    }
    int lineWeightCount() const override { return static_cast<int>(weights.size()); }
    int lineWeightAt(int index) const override { return weights[static_cast<std::size_t>(index)]; }
    OdString lineWeightName(int weight) const override { return std::to_wstring(weight).append(unit); }

    std::vector<int> weights = {-3, -1, -2, 0, 25, 50, 211};
    std::wstring unit = L" mm";
};

/// While the colour dialog is open, something happens.
class Dialogs : public velmtest::FakeDialogFactory
{
public:
    std::optional<OdCmColor> colorDialog(wxWindow* parent, const OdCmColor* initial, unsigned flags) override
    {
        isOpen = true;
        meanwhile();
        isOpen = false;
        return FakeDialogFactory::colorDialog(parent, initial, flags);
    }

    bool isOpen = false;
    std::function<void()> meanwhile = [] {};
};

class Fixture : public House
{
public:
    Fixture()
    {
        dashed = database->addLinetype(L"Dashed")->objectId();
        bar.refresh();
        bar.hasDialog = [this] { return dialogs.isOpen; };
        bar.onEdited = [this] { ++edits; };
    }

    OdDbLeader* addLeader()
    {
        auto leader = std::make_unique<OdDbLeader>();
        leader->dimensionStyle = database->getDIMSTYLE();
        return database->addEntity(std::move(leader), database->modelSpace());
    }
    void select(std::initializer_list<const OdDbEntity*> entities)
    {
        std::vector<OdDbObjectId> ids;
        for (const OdDbEntity* entity : entities)
            ids.push_back(entity->objectId());
        selection.set(ids, {});
    }

    // As a page does it.
    template <typename Model>
    Model& as(QAbstractItemModel* model)
    {
        return dynamic_cast<Model&>(*model);
    }
    void clickColor(int row) { as<velm::ColorModel>(bar.colors()).onClicked(row); }
    void clickLinetype(int row) { as<velm::LineTypeModel>(bar.linetypes()).setCurrentIndexOrLoad(row); }
    void clickLinetype(const QString& name) { clickLinetype(bar.linetypes()->getIndexFromLocalName(name)); }
    void clickLineWeight(int row) { as<velm::LineWeightModel>(bar.lineWeights()).onChangeCurrentComboIndex(row); }

    /// What the four boxes show, as in "ByLayer, Dashed, -1 mm, Dot".
    QString shown()
    {
        const auto row = [](const QAbstractItemModel* model) { return model->property("currentIndex").toInt(); };
        const velm::ColorObject* color = bar.colors()->getColorObject(row(bar.colors()));
        const auto* weight =
            bar.lineWeights()->index(row(bar.lineWeights()), 0).data(0).value<velm::LineWeightObject*>();
        const int arrowhead = row(bar.arrowheads());
        return QStringList({color->getType().isEmpty() ? color->name() : "*" + color->getType() + "*",
                            bar.linetypes()->lineTypeName(row(bar.linetypes())).value_or("-"), weight->name(),
                            arrowhead < 0 ? "-" : bar.arrowheads()->currentArrowHead().internalName})
            .join(", ");
    }

    Gui gui;
    Dialogs dialogs;
    Selection selection{documents};
    CurrentPropertiesController bar{documents, selection, gui, dialogs};
    OdDbObjectId dashed;
    int edits = 0;
};
} // namespace

/// The bar's controller and its four models over real drawings, without a window.
class CurrentPropertiesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void withoutASelectionNewEntitiesAreSet()
    {
        Fixture house;
        QCOMPARE(house.shown(), QString("ByLayer, ByLayer, -1 mm, _CLOSEDFILLED"));
        QCOMPARE(house.bar.subject(), QString("New entities"));
        house.clickColor(2);
        house.clickLinetype("Dashed");
        house.clickLineWeight(5);
        house.bar.takeArrowhead(1);
        QCOMPARE(house.database->getCECOLOR(), OdCmColor::fromIndex(1));
        QCOMPARE(house.database->getCELTYPE(), house.dashed);
        QCOMPARE(house.database->getCELWEIGHT(), 50);
        const OdString& arrowhead = house.database->findDimStyle(L"Standard")->dimldrblk();
        QVERIFY(!arrowhead.isEmpty());
        QCOMPARE(house.shown(), "1, Dashed, 50 mm, " + velm::toQt(arrowhead));
        QCOMPARE(house.edits, 4);
        QVERIFY(house.wall->color().isByLayer());
        // The usual one has no name in the drawing.
        house.bar.takeArrowhead(0);
        QVERIFY(house.database->findDimStyle(L"Standard")->dimldrblk().isEmpty());
    }

    void selectedEntitiesAreSetTogether()
    {
        Fixture house;
        house.select({house.wall, house.circle});
        QCOMPARE(house.bar.subject(), QString("2 entities"));
        QVERIFY(!house.bar.hasArrowhead());
        house.clickColor(3);
        house.clickLinetype("Dashed");
        house.clickLineWeight(3);
        for (const OdDbEntity* entity : std::initializer_list<OdDbEntity*>{house.wall, house.circle}) {
            QCOMPARE(entity->color(), OdCmColor::fromIndex(2));
            QCOMPARE(entity->linetypeId(), house.dashed);
            QCOMPARE(entity->lineWeight(), 0);
        }
        QCOMPARE(house.edits, 3);
        QVERIFY(house.text->color().isByLayer() && house.database->getCECOLOR().isByLayer());
        house.clickLinetype("ByLayer");
        QVERIFY(house.wall->linetypeId().isNull());
        // The same again is no edit.
        house.clickColor(3);
        house.clickLinetype("ByLayer");
        QCOMPARE(house.edits, 4);
        house.selection.clear();
        QCOMPARE(house.shown(), QString("ByLayer, ByLayer, -1 mm, _CLOSEDFILLED"));
    }

    void differentValuesShowAsSuchUntilOneIsChosen()
    {
        Fixture house;
        house.wall->setColor(OdCmColor::fromIndex(1));
        house.wall->setLinetype(house.dashed);
        house.wall->setLineWeight(25);
        house.select({house.wall, house.circle});
        const QString varies = "*varies*, *Varies*, *Varies*, -";
        QCOMPARE(house.shown(), varies);
        // Those rows stand for nothing that could be set.
        house.clickColor(house.bar.colors()->rowCount() - 2);
        house.clickLinetype(house.bar.linetypes()->rowCount() - 2);
        house.clickLineWeight(house.bar.lineWeights()->rowCount() - 1);
        house.bar.refresh();
        QCOMPARE(house.shown(), varies);
        QCOMPARE(house.edits, 0);
        const int rows = house.bar.colors()->rowCount();
        house.clickColor(2);
        QCOMPARE(house.shown(), QString("1, *Varies*, *Varies*, -"));
        QCOMPARE(house.bar.colors()->rowCount(), rows - 1);
        house.clickLinetype("Dashed");
        house.clickLineWeight(1);
        QCOMPARE(house.shown(), QString("1, Dashed, -1 mm, -"));
        QCOMPARE(house.edits, 3);
        QCOMPARE(house.circle->linetypeId(), house.dashed);
        QCOMPARE(house.wall->lineWeight(), -1);
        // From several back to one, without a choice.
        house.wall->setColor(OdCmColor::fromIndex(5));
        house.bar.refresh();
        QVERIFY(house.shown().startsWith("*varies*"));
        house.select({house.wall});
        QVERIFY(house.shown().startsWith("5, "));
    }

    void aCancelledDialogLeavesEverything()
    {
        Fixture house;
        house.circle->setColor(OdCmColor::fromIndex(1));
        house.circle->setLinetype(house.dashed);
        for (const bool several : {false, true}) {
            if (several)
                house.select({house.wall, house.circle});
            else
                house.select({house.circle});
            const QString before = house.shown();
            house.dialogs.colors = {std::nullopt};
            house.clickColor(house.bar.colors()->rowCount() - 1);
            house.dialogs.loadLineTypes = [](OdArray<OdString>&) { return false; };
            house.clickLinetype(house.bar.linetypes()->rowCount() - 1);
            QCOMPARE(house.shown(), before);
            house.bar.refresh();
            QCOMPARE(house.shown(), before);
        }
        QCOMPARE(house.edits, 0);
        house.dialogs.colors = {OdCmColor::fromRGB(1, 2, 3)};
        house.clickColor(house.bar.colors()->rowCount() - 1);
        QCOMPARE(house.wall->color(), OdCmColor::fromRGB(1, 2, 3));
        QCOMPARE(house.circle->color(), OdCmColor::fromRGB(1, 2, 3));
        QCOMPARE(house.edits, 1);
    }

    void aLoadedLinetypeIsGivenToTheSelection()
    {
        Fixture house;
        house.select({house.wall});
        house.dialogs.loadLineTypes = [&](OdArray<OdString>& loaded) {
            house.database->addLinetype(L"Dotted");
            loaded.append(L"Dotted");
            return true;
        };
        house.clickLinetype(house.bar.linetypes()->rowCount() - 1);
        QCOMPARE(house.wall->linetypeId(), house.database->findLinetype(L"Dotted")->objectId());
        house.dialogs.loadLineTypes = [&](OdArray<OdString>& loaded) {
            for (const wchar_t* name : {L"One", L"Two"}) {
                house.database->addLinetype(name);
                loaded.append(name);
            }
            // Somebody looks at the drawing before the model does.
            house.bar.hasDialog = [] { return true; };
            house.bar.refresh();
            house.bar.hasDialog = nullptr;
            return true;
        };
        house.edits = 0;
        house.clickLinetype(house.bar.linetypes()->rowCount() - 1);
        QVERIFY(house.shown().contains("Dotted"));
        QCOMPARE(house.wall->linetypeId(), house.database->findLinetype(L"Dotted")->objectId());
        QVERIFY(house.bar.linetypes()->getIndexFromLocalName("Two") > 0);
        // Others show the drawing's linetypes, too.
        QVERIFY(house.edits > 0);
    }

    void arrowheadsAreTheLeaders()
    {
        Fixture house;
        OdDbLeader* first = house.addLeader();
        OdDbLeader* second = house.addLeader();
        second->arrowhead = L"_Dot";
        house.select({house.wall, first});
        QVERIFY(house.bar.hasArrowhead());
        QVERIFY(house.shown().endsWith(", _CLOSEDFILLED"));
        house.select({first, second});
        QVERIFY(house.shown().endsWith(", -"));
        // A block of the drawing, which isn't among the common ones, comes as a row of its own.
        second->arrowhead = L"Door";
        house.select({second});
        QVERIFY(house.shown().endsWith(", Door"));
        QCOMPARE(house.bar.extraArrowheadName(), QString("Door"));
        const int extra = house.bar.arrowheads()->rowCount() - 2;
        house.select({first, second});
        house.bar.takeArrowhead(extra + 1);
        QCOMPARE(house.edits, 0);
        house.bar.takeArrowhead(extra);
        QCOMPARE(first->arrowhead, std::optional<OdString>(L"Door"));
        QCOMPARE(house.edits, 1);
        QVERIFY(house.database->findDimStyle(L"Standard")->dimldrblk().isEmpty());
        // Another drawing has no such block.
        house.documents.open(std::make_unique<OdApDocument>(L"/two.dxf", std::make_unique<OdDbDatabase>()));
        QVERIFY(house.bar.extraArrowheadName().isEmpty());
        QCOMPARE(house.bar.arrowheads()->rowCount(), extra + 1);
    }

    void whatIsOddStillHasARow()
    {
        Fixture house;
        house.circle->setLineWeight(33);
        house.circle->setLinetype(house.dashed);
        house.select({house.circle});
        house.dashed.openObject()->erase();
        house.bar.refresh();
        QCOMPARE(house.shown(), QString("ByLayer, ByLayer, 25 mm, -"));
        QCOMPARE(house.circle->lineWeight(), 33);
        house.database->setCELTYPE(house.dashed);
        house.selection.clear();
        QVERIFY(house.shown().startsWith("ByLayer, ByLayer"));
        house.select({house.wall});
        house.wall->erase();
        house.clickColor(2);
        QVERIFY(house.wall->color().isByLayer());
    }

    void eachDrawingHasItsOwn()
    {
        Fixture house;
        OdApDocument* first = house.documents.curDocument();
        auto other = std::make_unique<OdDbDatabase>();
        OdDbDatabase* database = other.get();
        database->setCECOLOR(OdCmColor::fromIndex(3));
        database->setLWDEFAULT(50);
        house.clickLinetype("Dashed");
        house.select({house.wall});
        const QPointer<QAbstractItemModel> weights = house.bar.lineWeights();
        const int edits = house.edits;
        OdApDocument* second = house.documents.open(std::make_unique<OdApDocument>(L"/two.dxf", std::move(other)));
        QCOMPARE(house.shown(), QString("3, ByLayer, -1 mm, _CLOSEDFILLED"));
        QCOMPARE(house.edits, edits);
        QVERIFY(house.bar.lineWeights() != weights && weights);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!weights);
        house.clickColor(2);
        QCOMPARE(database->getCECOLOR(), OdCmColor::fromIndex(1));
        QVERIFY(house.database->getCECOLOR().isByLayer());
        house.documents.setCurDocument(first);
        QVERIFY(house.shown().startsWith("ByLayer, Dashed"));
        house.documents.close(first);
        QCOMPARE(house.documents.curDocument(), second);
        QVERIFY(house.shown().startsWith("1, ByLayer"));
        house.documents.close(second);
        QVERIFY(!house.bar.hasDrawing() && house.bar.subject().isEmpty());
        QCOMPARE(house.bar.linetypes()->rowCount(), 0);
        // What a page may still send.
        house.edits = 0;
        house.clickColor(3);
        house.clickLinetype(0);
        house.clickLineWeight(3);
        house.bar.takeArrowhead(1);
        QCOMPARE(house.edits, 0);
    }

    void changesElsewhereAreShown()
    {
        Fixture house;
        house.select({house.wall});
        house.wall->setColor(OdCmColor::fromRGB(9, 8, 7));
        house.wall->setLineWeight(50);
        house.wall->setLinetype(house.database->addLinetype(L"New")->objectId());
        house.walls->setColor(OdCmColor::fromIndex(1));
        house.gui.unit = L" in";
        auto* row = house.bar.lineWeights()->index(4, 0).data(0).value<velm::LineWeightObject*>();
        const QSignalSpy renamed(row, &velm::LineWeightObject::lineWeightNameChanged);
        house.gui.unit = L" inch";
        house.bar.refresh();
        QCOMPARE(house.shown(), QString("7, New, 50 inch, -"));
        QCOMPARE(renamed.count(), 1);
        QCOMPARE(house.as<velm::ColorModel>(house.bar.colors()).byLayerColor(), QColor(255, 0, 0));
        QCOMPARE(house.edits, 0);
    }

    void aModelOutlivesItsDialog()
    {
        Fixture house;
        house.select({house.wall});
        QPointer<QAbstractItemModel> colors = house.bar.colors();
        house.dialogs.meanwhile = [&] {
            house.bar.rebuild();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(colors);
        };
        house.dialogs.colors = {OdCmColor::fromIndex(30)};
        house.clickColor(house.bar.colors()->rowCount() - 1);
        QCOMPARE(house.wall->color(), OdCmColor::fromIndex(30));
        QVERIFY(house.bar.colors() != colors);
        QVERIFY(house.shown().startsWith("30, "));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!colors);
    }
};

QTEST_GUILESS_MAIN(CurrentPropertiesTest)
#include "tst_currentproperties.moc"
