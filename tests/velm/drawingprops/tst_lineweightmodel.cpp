#include "velm/drawingprops/lineweightmodel.h"

#include "support/changescript.h"
#include "support/fakehost.h"
#include "support/members.h"
#include "support/rowmirror.h"
#include "support/scopes.h"
#include "support/signallog.h"
#include "velm/bridge/conversions.h"

#include <QTest>

#include <limits>

using namespace velm;
using velmtest::SignalLog;

namespace {
constexpr int badRows[] = {-2, -1, 7, INT_MAX, INT_MIN};
const LineWeightModelParams all(true, true, true);

/// A host with the seven lineweights -3 -1 -2 0 5 25 50, each named by its number and a unit.
struct Host : velmtest::FakeGuiController
{
    QString unit = "mm";

    Host()
    {
        lineWeights = [this] {
            std::vector<std::pair<int, OdString>> table;
            for (const int weight : {-3, -1, -2, 0, 5, 25, 50})
                table.emplace_back(weight, odFromQt(QString::number(weight) + unit));
            return table;
        };
    }
};

LineWeightObject* rowObject(const LineWeightModel& model, int row)
{
    return model.index(row, 0).data(0).value<LineWeightObject*>();
}

/// "-3mm:0.5 0mm:0", without bringing names up to date.
QString text(LineWeightModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows += QString("%1:%2").arg(rowObject(model, row)->name()).arg(rowObject(model, row)->factor());
    return rows.join(' ');
}
} // namespace

class TestLineWeightModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(LineWeightModel::staticMetaObject),
                 "signal: currentItemChanged() slot: onChangeCurrentComboIndex(int) "
                 "property: currentIndex! tooltip! size!");
        QCOMPARE(velmtest::members(ILineWeightModel::staticMetaObject), "signal: notifyComboUpdateManager()");
        QCOMPARE(velmtest::members(LineWeightObject::staticMetaObject),
                 "signal: lineWeightNameChanged() property: lineWeightName! lineWeightFactor!");
        const Host host;
        LineWeightModel model(host, all, {20, 10});
        QCOMPARE(model.roleNames(), (QHash<int, QByteArray>{{0, "object"}}));
        QCOMPARE(model.property("size"), QSize(20, 10));
        QCOMPARE(model.property("currentIndex"), 0);
        for (const int role : {1, 2, 256})
            QVERIFY(!model.index(0, 0).data(role).isValid());
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    }

    void rowsComeWithTheirFlags()
    {
        Host host;
        ExternalFunctions functions;
        functions.defaultLineWeight = [] { return 25; };
        const velmtest::ScopedExternalFunctions scope(functions);
        const QStringList special{"-3mm:0.5", "-1mm:0", "-2mm:0"};
        for (int flags = 0; flags < 8; ++flags) {
            LineWeightModel model(host, {(flags & 4) != 0, (flags & 2) != 0, (flags & 1) != 0}, {});
            QStringList expected;
            for (int bit = 0; bit < 3; ++bit)
                if (flags & (1 << bit))
                    expected += special[bit];
            QCOMPARE(text(model), (expected + QStringList{"0mm:0", "5mm:0.1", "25mm:0.5", "50mm:1"}).join(' '));
        }
    }

    void withoutAHostsDefaultItIsZero()
    {
        const Host host;
        LineWeightModel model(host, {false, false, true}, {});
        QCOMPARE(text(model).section(' ', 0, 0), "-3mm:0");
    }

    void namesFollowTheHostWhenTheyAreShown()
    {
        Host host;
        LineWeightModel model(host, all, {});
        LineWeightObject* row = rowObject(model, 4);
        SignalLog log(*row);
        rowObject(model, 4);
        QCOMPARE(log.take(), "");
        host.unit = "in";
        QCOMPARE(row->name(), "5mm");
        rowObject(model, 4);
        rowObject(model, 4);
        QCOMPARE(log.take(), "lineWeightNameChanged");
        QCOMPARE(row->property("lineWeightName"), "5in");
        // While the model varies, names stay.
        model.setIsVaries(true);
        host.unit = "mm";
        rowObject(model, 4);
        QCOMPARE(log.take(), "");
        model.setIsVaries(false);
        rowObject(model, 4);
        QCOMPARE(log.take(), "lineWeightNameChanged");
    }

    void onlyAPersonsChoiceReachesTheHost()
    {
        const Host host;
        LineWeightModel model(host, all, {});
        SignalLog log(model);
        QVERIFY(model.setCurrentIndex(3) && !model.setCurrentIndex(3));
        QCOMPARE(log.take(), "currentItemChanged");
        model.onChangeCurrentComboIndex(4);
        model.onChangeCurrentComboIndex(4);
        QCOMPARE(log.take(), "currentItemChanged notifyComboUpdateManager");
        for (const int bad : badRows) {
            QVERIFY(!model.setCurrentIndex(bad) && !model.lineWeight(bad) && !model.index(bad, 0).isValid());
            model.onChangeCurrentComboIndex(bad);
        }
        QCOMPARE(log.take(), "");
        QCOMPARE(model.getCurrentIndex(), 4);
        QCOMPARE(model.lineWeight(0), std::optional(-3));
        QCOMPARE(model.lineWeight(6), std::optional(50));
        QCOMPARE(model.indexOf(-2), std::optional(2));
        QCOMPARE(model.indexOf(7), std::nullopt);
    }

    void theVariesRowComesAndGoes()
    {
        const Host host;
        LineWeightModel model(host, {}, {});
        const velmtest::RowMirror mirror(model);
        const QString plain = text(model);
        QCOMPARE(model.indexOf(-3), std::nullopt);
        model.setCurrentIndex(2);
        SignalLog log(model);
        model.setIsVaries(false);
        QCOMPARE(log.take(), "");
        model.setIsVaries(true);
        model.setIsVaries(true);
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 4, 4) rowsInserted(-, 4, 4) currentItemChanged");
        QCOMPARE(text(model), plain + " *Varies*:0");
        QCOMPARE(model.getCurrentIndex(), 4);
        QCOMPARE(model.indexOf(-3), std::optional(4));
        // The current row goes to the front before the row that it stood on is removed.
        model.setIsVaries(false);
        QCOMPARE(log.take(), "currentItemChanged rowsAboutToBeRemoved(-, 4, 4) rowsRemoved(-, 4, 4)");
        QCOMPARE(model.getCurrentIndex(), 0);
        QCOMPARE(text(model), plain);
        // A row chosen meanwhile stays.
        model.setIsVaries(true);
        model.setCurrentIndex(1);
        log.take();
        model.setIsVaries(false);
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 4, 4) rowsRemoved(-, 4, 4)");
        QCOMPARE(model.getCurrentIndex(), 1);
        // A by-default row stands before the varies row and is the one that is found.
        LineWeightModel withDefault(host, all, {});
        withDefault.setIsVaries(true);
        QCOMPARE(withDefault.indexOf(-3), std::optional(0));
    }

    void withoutATableThereAreNoRows()
    {
        const auto empty = createEmptyGuiController();
        const auto model = createLineWeightModel(*empty, all, {});
        SignalLog log(*model);
        model->setIsVaries(true);
        QVERIFY(model->isVaries() && model->rowCount() == 0);
        model->setIsVaries(false);
        QVERIFY(!model->isVaries() && !model->setCurrentIndex(0));
        QCOMPARE(log.take(), "");
    }

    void aTableOfZerosHasNoFactor()
    {
        velmtest::FakeGuiController host;
        host.lineWeights = [] { return std::vector<std::pair<int, OdString>>{{0, L"hairline"}}; };
        LineWeightModel model(host, {}, {});
        QCOMPARE(text(model), "hairline:0");
        model.setIsVaries(true);
        model.setIsVaries(false);
        QCOMPARE(text(model), "hairline:0");
    }

    void viewsStayRightUnderRandomChange()
    {
        const Host host;
        LineWeightModel model(host, all, {});
        const velmtest::RowMirror mirror(model);
        velmtest::ChangeScript script(6);
        script.add("varies", [&](QRandomGenerator& random) { model.setIsVaries(random.bounded(2)); });
        script.add("set", [&](QRandomGenerator& random) { model.setCurrentIndex(random.bounded(-2, 10)); });
        script.add("choose",
                   [&](QRandomGenerator& random) { model.onChangeCurrentComboIndex(random.bounded(-2, 10)); });
        QVERIFY(script.run(500, [&] {
            return mirror.isRight() && model.rowCount() == (model.isVaries() ? 8 : 7) &&
                   model.lineWeight(model.getCurrentIndex()).has_value();
        }));
    }
};

QTEST_GUILESS_MAIN(TestLineWeightModel)
#include "tst_lineweightmodel.moc"
