#include "colorcombo.h"

#include "od/oddbdatabase.h"
#include "support/signallog.h"

#include <QTest>

#include <algorithm>

using namespace colorcombo;
using velmtest::SignalLog;

namespace {
const QString noRows = "";

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

class TestColorRows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
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
};

QTEST_GUILESS_MAIN(TestColorRows)
#include "tst_colorrows.moc"
