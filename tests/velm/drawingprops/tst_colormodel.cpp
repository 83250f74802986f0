#include "velm/drawingprops/colormodel.h"

#include "od/oddbdatabase.h"
#include "support/changescript.h"
#include "support/fakehost.h"
#include "support/members.h"
#include "support/rowmirror.h"
#include "support/signallog.h"

#include <QJSEngine>
#include <QTest>
#include <QTranslator>

#include <limits>

using namespace velm;
using velmtest::SignalLog;

namespace {
const QString noRows = "";
constexpr int badRows[] = {-2, -1, 1000, INT_MAX, INT_MIN};

const OdCmColor byLayer(OdCmColor::kByLayer);
const OdCmColor byBlock(OdCmColor::kByBlock);
const OdCmColor none(OdCmColor::kNone);
const OdCmColor rose = OdCmColor::fromRGB(250, 1, 2);
const OdCmColor orange = OdCmColor::fromIndex(30);

QString nameOf(const OdCmColor& color)
{
    return QString::number(color.color(), 16);
}

/// A host whose names of rows are the colours' packed values, with a true colour and an index that were picked before.
struct Fixture
{
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    QStringList described; ///< by layer colour and override of each description

    explicit Fixture(bool whiteFirst = false)
    {
        gui.initColorIndices(whiteFirst ? 32 : 0);
        gui.describe = [this](const OdCmColor& color, wxColour byLayerColor, bool layerOverride, int) {
            described += QString("%1 %2")
                             .arg(byLayerColor.GetAsString(wxC2S_HTML_SYNTAX).utf8_string().c_str())
                             .arg(layerOverride);
            return ColorDescription{color.isByACI(), wxString(nameOf(color).toStdWString()), wxColour(1, 2, 3)};
        };
        gui.tryAddColor(rose, 1);
        gui.tryAddColor(orange, 0);
    }

    std::unique_ptr<ColorModel> model(int flags, bool varies = false, QColor customColor = {})
    {
        return std::make_unique<ColorModel>(gui, dialogs, flags, varies, QSize(40, 20), customColor, "mine");
    }
};

/// "c3000001 varies load", the custom row by its name.
QString text(const ColorModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto* object = model.index(row, 0).data(0).value<ColorObject*>();
        rows += object->getType().isEmpty() ? object->name() : object->getType() + object->name();
    }
    return rows.join(' ');
}

/// One row that stands in a combo when all bits of `with` are set and none of `without`.
struct Candidate
{
    OdCmColor color;
    int with;
    int without;
};

/// The rows of a combo between the custom and the varies one.
std::vector<OdCmColor> standardRows(int flags)
{
    std::vector<Candidate> candidates{{byLayer, 2, 0}, {byBlock, 2, 0}, {none, 8, 0}};
    for (std::uint16_t index = 1; index <= 6; ++index)
        candidates.push_back({OdCmColor::fromIndex(index), 0, 0});
    const Candidate rest[] = {
        {OdCmColor::fromIndex(7), 0, 32}, {byLayer, 32, 0}, {byLayer, 4, 0}, {rose, 1, 0}, {orange, 0, 0}};
    candidates.insert(candidates.end(), std::begin(rest), std::end(rest));
    std::vector<OdCmColor> result;
    for (const Candidate& candidate : candidates)
        if ((flags & candidate.with) == candidate.with && !(flags & candidate.without))
            result.push_back(candidate.color);
    return result;
}

bool isTaken(const OdCmColor& color, int flags)
{
    return color.isByBlock()   ? flags & 2
           : color.isByColor() ? flags & 1
           : color.isNone()    ? flags & 8
                               : color.color() != 0;
}
} // namespace

class TestColorModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(ColorModel::staticMetaObject),
                 "signal: byLayerColorChanged() currentItemChanged() slot: onClicked(int) doShowColorDialog(int) "
                 "getQColor(int) property: currentIndex! byLayerColor tooltip! size! byLayerAsBlack!");
        QCOMPARE(velmtest::members(IColorModel::staticMetaObject), "signal: colorChanged(int)");
        QCOMPARE(velmtest::members(ColorObject::staticMetaObject),
                 "property: type! colorIndex! color! name! drawDiagonal!");
        Fixture fixture;
        const auto model = fixture.model(4, true, Qt::yellow);
        QCOMPARE(model->roleNames(), (QHash<int, QByteArray>{{0, "object"}, {1, "modelData"}}));
        QCOMPARE(model->index(3, 0).data(1), model->index(3, 0).data(0));
        for (const int role : {2, 256, -1})
            QVERIFY(!model->index(0, 0).data(role).isValid());
        QCOMPARE(model->property("tooltip"), "Color Control");
        QCOMPARE(model->property("size"), QSize(40, 20));
        QCOMPARE(model->property("byLayerAsBlack"), true);
        QCOMPARE(model->property("byLayerColor").value<QColor>(), QColor(Qt::black));
        QCOMPARE(model->property("currentIndex"), -1);
        // type, place in the array, colour, name and diagonal of each kind of row
        const auto row = [&](int index) {
            const ColorObject& object = *std::as_const(*model).getColorObject(index);
            return QString("%1 %2 %3 '%4' %5")
                .arg(object.getType())
                .arg(object.colorIndex())
                .arg(object.color().isValid() ? object.color().name() : "-", object.name())
                .arg(object.drawDiagonal());
        };
        const int last = model->rowCount() - 1;
        QCOMPARE(row(0), "custom 1 #ffff00 'mine' 0");
        QCOMPARE(row(1), " 3 #010203 'c3000001' 1");
        QCOMPARE(row(last - 1), "varies 0 - '' 0");
        QCOMPARE(row(last), "load 0 - '' 0");
    }

    void rowsComeWithTheirFlags()
    {
        for (int flags = 0; flags < 128; ++flags)
            for (const bool varies : {false, true})
                for (const QColor& custom : {QColor(), QColor(Qt::yellow)}) {
                    Fixture fixture;
                    const auto model = fixture.model(flags, varies, custom);
                    QStringList expected;
                    for (const OdCmColor& color : standardRows(flags))
                        expected += nameOf(color);
                    QCOMPARE(text(*model), (custom.isValid() ? "custommine " : "") + expected.join(' ') +
                                               (varies ? " varies load" : " load"));
                    QCOMPARE(model->isVaries(), varies);
                }
    }

    // Trailing rows count as by layer and the custom one as by block, since they hold those places of the array.
    void aColorIsFoundAddedOrRefusedByTheFlags()
    {
        const OdCmColor colors[] = {byLayer,
                                    byBlock,
                                    none,
                                    rose,
                                    orange,
                                    OdCmColor(0u),
                                    OdCmColor::fromIndex(7),
                                    OdCmColor::fromIndex(99),
                                    OdCmColor::fromRGB(5, 5, 5),
                                    OdCmColor::fromRGB(255, 255, 255)};
        for (int flags = 0; flags < 64; ++flags)
            for (const OdCmColor& color : colors)
                for (const bool varies : {false, true})
                    for (const QColor& custom : {QColor(), QColor(Qt::yellow)}) {
                        Fixture fixture;
                        const auto model = fixture.model(flags, varies, custom);
                        std::vector<OdCmColor> rows = standardRows(flags);
                        if (custom.isValid())
                            rows.insert(rows.begin(), byBlock);
                        rows.insert(rows.end(), varies ? 2 : 1, byLayer);
                        const int count = model->rowCount();
                        const bool isKeptOut =
                            (flags & 32) && (color == OdCmColor::fromIndex(7) || nameOf(color) == "c2ffffff");
                        const auto found = std::ranges::find(rows, color);
                        const bool isNew = !isKeptOut && found == rows.end() && isTaken(color, flags);
                        int expected = isNew                              ? count - (varies ? 2 : 1)
                                       : found == rows.end() || isKeptOut ? 0
                                                                          : int(found - rows.begin());
                        if (varies)
                            expected = count + isNew - 2;
                        else if (expected == count - 1 && !isNew)
                            expected = count - 2;
                        SignalLog log(*model);
                        QCOMPARE(model->getOrAddColor(color), expected);
                        const QString place = QString("(-, %1, %1)").arg(count - (varies ? 2 : 1));
                        QCOMPARE(log.take(),
                                 isNew ? "rowsAboutToBeInserted" + place + " rowsInserted" + place : noRows);
                        QCOMPARE(model->getOrAddColor(color), expected); // the second time there is nothing to add
                        QCOMPARE(log.take(), noRows);
                        QCOMPARE(model->getCurrentIndex(), -1);
                    }
    }

    void theHostsColorComesByAReset()
    {
        Fixture fixture;
        const auto model = fixture.model(3);
        const velmtest::RowMirror mirror(*model);
        SignalLog log(*model);
        const QString reset = "modelAboutToBeReset modelReset currentItemChanged";
        model->setColor(OdCmColor::fromIndex(99));
        QCOMPARE(log.take(), reset);
        QCOMPARE(model->getCurrentIndex(), model->rowCount() - 2);
        QCOMPARE(model->color(model->getCurrentIndex()), OdCmColor::fromIndex(99));
        model->setColor(none); // which these flags refuse
        QCOMPARE(log.take(), reset);
        QCOMPARE(model->getCurrentIndex(), 0);
        // While the model varies, a colour in the list doesn't show.
        model->setIsVaries(true);
        log.take();
        model->setColor(orange);
        QCOMPARE(log.take(), reset);
        QCOMPARE(model->getCurrentIndex(), model->rowCount() - 2);
        QVERIFY(model->isVaries());
    }

    void theVariesRowComesAndGoes()
    {
        Fixture fixture;
        const auto model = fixture.model(0);
        const QString plain = text(*model);
        const QString place = QString("(-, %1, %1)").arg(model->rowCount() - 1);
        SignalLog log(*model);
        model->setIsVaries(false);
        QCOMPARE(log.take(), noRows);
        model->setIsVaries(true);
        model->setIsVaries(true);
        QCOMPARE(log.take(), QString("rowsAboutToBeInserted%1 rowsInserted%1 currentItemChanged").arg(place));
        QCOMPARE(text(*model), plain.chopped(4) + "varies load");
        const int variesRow = model->rowCount() - 2;
        QCOMPARE(model->getCurrentIndex(), variesRow);
        model->setIsVaries(false);
        QCOMPARE(log.take(), QString("rowsAboutToBeRemoved%1 rowsRemoved%1").arg(place));
        QCOMPARE(text(*model), plain);
        QCOMPARE(model->getCurrentIndex(), variesRow); // now that of the load row
    }

    void aClickChoosesARow()
    {
        Fixture fixture;
        const auto model = fixture.model(3, true);
        SignalLog log(*model);
        model->onClicked(4);
        QCOMPARE(log.take(), "currentItemChanged colorChanged(4)");
        model->onClicked(4);
        QCOMPARE(log.take(), "currentItemChanged");
        const int variesRow = model->rowCount() - 2;
        model->onClicked(variesRow);
        QCOMPARE(log.take(), QString("currentItemChanged colorChanged(%1)").arg(variesRow));
    }

    void aClickOnTheLastRowOpensTheDialog()
    {
        Fixture fixture;
        const auto model = fixture.model(3);
        const int last = model->rowCount() - 1;
        SignalLog log(*model);
        // Cancelled, first with no row to go back to.
        fixture.dialogs.colors = {{}, {}};
        for (const int former : {-1, 4}) {
            model->setCurrentIndex(former);
            log.take();
            model->onClicked(last);
            QCOMPARE(log.take(), "currentItemChanged currentItemChanged");
            QCOMPARE(model->getCurrentIndex(), former);
        }
        // A colour that is new, one that is in the list, and one that is refused.
        fixture.dialogs.colors = {OdCmColor::fromRGB(7, 8, 9), OdCmColor::fromIndex(1), none};
        model->onClicked(last);
        const QString inserted = QString("rowsAboutToBeInserted(-, %1, %1) rowsInserted(-, %1, %1)").arg(last);
        QCOMPARE(log.take(),
                 QString("currentItemChanged %1 currentItemChanged colorChanged(%2)").arg(inserted).arg(last));
        for (const int row : {2, 0}) {
            model->onClicked(last + 1);
            QCOMPARE(log.take(), QString("currentItemChanged currentItemChanged colorChanged(%1)").arg(row));
            QCOMPARE(model->getCurrentIndex(), row);
        }
        // The answer to a dialog ends the varying, and the dialog hears of it before.
        model->setIsVaries(true);
        log.take();
        fixture.dialogs.colors = {OdCmColor::fromIndex(1)};
        model->onClicked(last + 2);
        const QString removed = QString("rowsAboutToBeRemoved(-, %1, %1) rowsRemoved(-, %1, %1)").arg(last + 1);
        QCOMPARE(log.take(), "currentItemChanged " + removed + " currentItemChanged colorChanged(2)");
        QCOMPARE(fixture.dialogs.log,
                 QStringList({"color 101 flags 1", "color c3000003 flags 1", "color c3000003 flags 1",
                              "color c2070809 flags 1", "color c3000001 flags 1", "color c0000100 flags 17"}));
    }

    void aPageMayAskForTheDialogItself()
    {
        Fixture fixture;
        const auto model = fixture.model(1);
        model->setCurrentIndex(2);
        SignalLog log(*model);
        fixture.dialogs.colors = {{}, {}, {}, {}, {}, OdCmColor::fromIndex(6)};
        for (const int bad : badRows)
            QCOMPARE(model->doShowColorDialog(bad), bad);
        QCOMPARE(model->doShowColorDialog(1), 5);
        QCOMPARE(log.take(), noRows);
        QCOMPARE(model->getCurrentIndex(), 2);
    }

    void rawIndexesAreHarmless()
    {
        Fixture fixture;
        const auto model = fixture.model(2);
        model->setCurrentIndex(1);
        SignalLog log(*model);
        for (const int bad : badRows) {
            model->setCurrentIndex(bad);
            model->onClicked(bad);
            QVERIFY(!model->getQColor(bad).isValid() && !model->getColorObject(bad) && model->getColor(bad) == 0);
            QCOMPARE(model->color(bad), none);
        }
        QCOMPARE(log.take(), noRows);
        model->setCurrentIndex(1);
        QCOMPARE(log.take(), "currentItemChanged"); // also when it is unchanged
        QCOMPARE(model->getCurrentIndex(), 1);
        QCOMPARE(model->getColor(3), int(0xc3000002));
    }

    void whiteModeReadsItsFirstRowAsWhite()
    {
        Fixture fixture(true);
        const auto model = fixture.model(35);
        QCOMPARE(model->color(0), OdCmColor::fromRGB(255, 255, 255));
        QCOMPARE(model->getColorObject(0)->name(), nameOf(byLayer));
        // The array's seventh standard colour is black and no row: it comes as a picked one.
        QCOMPARE(model->getOrAddColor(OdCmColor::fromRGB(0, 0, 0)), 11);
        QCOMPARE(model->getColorObject(model->rowCount() - 2)->colorIndex(), 9);
    }

    void changedFlagsCountFromTheNextCall()
    {
        Fixture fixture;
        const auto model = fixture.model(0);
        const QString rows = text(*model);
        QVERIFY(!model->hasFlag(1));
        model->setFlag(1 | 32);
        QVERIFY(model->hasFlag(1) && model->hasFlag(32));
        QCOMPARE(text(*model), rows);
        QCOMPARE(model->color(0), OdCmColor::fromRGB(255, 255, 255));
        QCOMPARE(model->getOrAddColor(rose), 8);
        model->clearFlag(32);
        QCOMPARE(model->flags(), 1);
        QCOMPARE(model->color(0), OdCmColor::fromIndex(1));
    }

    void theCustomRowBecomesCurrent()
    {
        Fixture fixture;
        const auto model = fixture.model(3, false, Qt::yellow);
        SignalLog log(*model);
        model->setCustomColor();
        QCOMPARE(log.take(), "currentItemChanged");
        QCOMPARE(model->getCurrentIndex(), 0);
        const auto without = fixture.model(3);
        without->setCustomColor();
        QCOMPARE(without->getCurrentIndex(), -1);
    }

    void modelsOfOneHostShareWhatWasPicked()
    {
        Fixture fixture;
        const auto one = fixture.model(1);
        const auto other = fixture.model(0);
        const QString rows = text(*other);
        SignalLog log(*other);
        const OdCmColor trueColor = OdCmColor::fromRGB(9, 9, 9);
        one->setColor(trueColor);
        one->setColor(OdCmColor::fromIndex(99));
        QCOMPARE(text(*other), rows);
        QCOMPARE(other->getOrAddColor(trueColor), 0);
        QCOMPARE(log.take(), noRows);
        const int added = other->getOrAddColor(OdCmColor::fromIndex(99));
        QCOMPARE(other->getColorObject(added)->colorIndex(), one->getColorObject(one->getCurrentIndex())->colorIndex());
        QCOMPARE(text(*fixture.model(1)), text(*one));
    }

    void aLayersColorGoesByTheViewport()
    {
        Fixture fixture;
        const auto model = fixture.model(2);
        OdDbDatabase database;
        OdDbLayerTableRecord* layer = database.addLayer(L"A");
        OdDbLayout* layout = database.layouts()[1];
        const OdDbObjectId viewport = database.addViewport()->objectId();
        layer->setColor(OdCmColor::fromIndex(1));
        layer->setColor(OdCmColor::fromRGB(10, 20, 30), viewport);
        SignalLog log(*model);
        const auto colorOf = [&](const OdDbObjectId& id) {
            model->setByLayer(id);
            return log.take() == "byLayerColorChanged" ? model->byLayerColor().name(QColor::HexArgb) : "no signal";
        };
        const QString red = "#ffff0000";
        QCOMPARE(colorOf(layer->objectId()), red);
        layout->setActiveViewportId(viewport);
        QCOMPARE(colorOf(layer->objectId()), red); // the model is shown
        database.setTILEMODE(false);
        QCOMPARE(colorOf(layer->objectId()), "#ff0a141e");
        QCOMPARE(colorOf(layer->objectId()), "#ff0a141e"); // told again
        // Red goes into the blue channel, too, and the override isn't told.
        fixture.described.clear();
        model->getOrAddColor(OdCmColor::fromIndex(50));
        QCOMPARE(fixture.described, QStringList("#0A140A 0"));
        log.take();
        layout->setActiveViewportId(database.addViewport()->objectId());
        QCOMPARE(colorOf(layer->objectId()), red); // no colour of its own there
        layout->setActiveViewportId(viewport);
        database.setPaperSpaceId(database.addLayout(L"Layout2")->getBlockTableRecordId());
        QCOMPARE(colorOf(layer->objectId()), red); // nobody works in a viewport of that sheet
        database.setPaperSpaceId(database.addBlock(L"Door")->objectId());
        QCOMPARE(colorOf(layer->objectId()), red); // no sheet at all
        const QString black = "#ff000000";
        for (const OdDbObjectId& id : {OdDbObjectId::kNull, OdDbObjectId(&database, 999), layout->objectId()})
            QCOMPARE(colorOf(id), black);
        QCOMPARE(colorOf(layer->objectId()), red);
        layer->erase();
        QCOMPARE(colorOf(layer->objectId()), black);
    }

    void theToolTipIsTranslated()
    {
        struct Translator : QTranslator
        {
            bool isEmpty() const override { return false; }
            QString translate(const char* context, const char* text, const char*, int) const override
            {
                return qstrcmp(context, "ColorModel") == 0 ? QString("<%1>").arg(text) : QString();
            }
        } translator;
        Fixture fixture;
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(fixture.model(0)->tooltip(), "<Color Control>");
    }

    void aScriptThatReadsARowDoesntOwnIt()
    {
        Fixture fixture;
        const auto model = fixture.model(3);
        const QPointer<ColorObject> row = model->getColorObject(1);
        QJSEngine engine;
        QJSEngine::setObjectOwnership(model.get(), QJSEngine::CppOwnership);
        engine.globalObject().setProperty("model", engine.newQObject(model.get()));
        QCOMPARE(engine.evaluate("model.data(model.index(1, 0), 0).name").toString(), nameOf(byBlock));
        engine.collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(row);
    }

    void aHostWithoutCombosStillHasColors()
    {
        const auto empty = createEmptyGuiController();
        velmtest::FakeDialogFactory dialogs;
        const auto model = createColorModel(*empty, dialogs, 3, false, {}, {}, {});
        QCOMPARE(model->rowCount(), 10);
        QCOMPARE(model->getColorObject(2)->name(), "");
        model->setColor(OdCmColor::fromIndex(2));
        QCOMPARE(model->property("currentIndex"), 3);
    }

    void viewsStayRightUnderRandomChange()
    {
        Fixture fixture;
        const auto model = fixture.model(1, false, Qt::yellow);
        const auto other = fixture.model(0);
        const velmtest::RowMirror mirror(*model);
        const auto color = [](QRandomGenerator& random) {
            return random.bounded(2) ? OdCmColor::fromIndex(quint16(random.bounded(258)))
                                     : OdCmColor::fromRGB(quint8(random.bounded(30)), 0, 0);
        };
        velmtest::ChangeScript script(61);
        script.add("set", [&](QRandomGenerator& random) { model->setColor(color(random)); });
        script.add("add", [&](QRandomGenerator& random) { model->getOrAddColor(color(random)); });
        script.add("add to the other", [&](QRandomGenerator& random) { other->getOrAddColor(color(random)); });
        script.add("varies", [&](QRandomGenerator& random) { model->setIsVaries(random.bounded(2)); });
        script.add("flags", [&](QRandomGenerator& random) {
            const int bit = 1 << random.bounded(6);
            random.bounded(2) ? model->setFlag(bit) : model->clearFlag(bit);
        });
        script.add("click", [&](QRandomGenerator& random) {
            fixture.dialogs.colors = {random.bounded(2) ? std::optional(color(random)) : std::nullopt};
            model->onClicked(random.bounded(-2, model->rowCount() + 2));
        });
        QVERIFY(script.run(500, [&] {
            const QString trailing = model->isVaries() ? " varies load" : " load";
            const QString rows = text(*model);
            return mirror.isRight() && rows.startsWith("custommine ") && rows.endsWith(trailing) &&
                   rows.count("varies") == model->isVaries() && model->getCurrentIndex() < model->rowCount();
        }));
    }
};

QTEST_GUILESS_MAIN(TestColorModel)
#include "tst_colormodel.moc"
