#include "velm/drawingprops/arrowheadmodel.h"

#include "od/oddbdatabase.h"
#include "support/changescript.h"
#include "support/fakehost.h"
#include "support/members.h"
#include "support/rowmirror.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "velm/bridge/qtwindowparent.h"

#include <QTest>

#include <limits>
#include <stdexcept>

using namespace velm;
using velmtest::rowText;
using velmtest::SignalLog;

namespace {
const QString told = "currentIndexChanged currentArrowHeadChanged";

ArrowHeadRecord arrowHead(const QString& name)
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    return {'_' + name, name, image};
}

struct Fixture
{
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    ArrowHeadModelParams params{{arrowHead("DOT"), arrowHead("OPEN")}, {}, 0, {}};

    std::unique_ptr<ArrowHeadModel> model(std::function<OdApDocManager*()> manager = {})
    {
        return std::make_unique<ArrowHeadModel>(params, gui, dialogs, QSize(30, 12), std::move(manager));
    }
};

QString names(const IArrowHeadModel& model)
{
    return rowText(model, ArrowHeadModel::GuiNameRole);
}
} // namespace

class TestArrowHeadModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(ArrowHeadModel::staticMetaObject),
                 "signal: currentIndexChanged() slot: showArrowHeadsDialog(int,velm::QtWindowParent*) "
                 "showArrowHeadsDialog(int) getCurrentIndex() property: currentIndex tooltip! size!");
        QCOMPARE(velmtest::members(ArrowHeadObject::staticMetaObject),
                 "property: arrowHeadPreview! width! height! arrowHeadName!");
        Fixture fixture;
        const auto model = fixture.model();
        QCOMPARE(model->roleNames(),
                 (QHash<int, QByteArray>{{0, "object"}, {256, "guiname"}, {257, "internalname"}, {258, "image"}}));
        QCOMPARE(model->property("tooltip"), "Arrow Head Combo");
        QCOMPARE(model->property("size"), QSize(30, 12));
        const auto* dot = model->index(0, 0).data(0).value<ArrowHeadObject*>();
        QCOMPARE(dot->property("arrowHeadPreview").value<QImage>(), arrowHead("DOT").preview);
        QCOMPARE(QSize(dot->width(), dot->height()), QSize(30, 12));
        QCOMPARE(dot->name(), "DOT");
        QCOMPARE(model->index(0, 0).data(258).value<QImage>(), arrowHead("DOT").preview);
    }

    void anExtraRowStandsBetweenTheRecordsAndTheLoadRow()
    {
        Fixture fixture;
        fixture.params.extra.shownName = "ignored without an internal name";
        QCOMPARE(names(*fixture.model()), "DOT OPEN Select...");
        fixture.params.extra = arrowHead("MINE");
        const auto model = fixture.model();
        const velmtest::RowMirror mirror(*model);
        QCOMPARE(names(*model), "DOT OPEN - Select...");
        QCOMPARE(rowText(*model, 257), "_DOT _OPEN - -");
        // The extra row has no object, which is a value nevertheless.
        QVERIFY(model->index(2, 0).data(0).isValid() && !model->index(2, 0).data(0).value<ArrowHeadObject*>());
        for (const int role : {256, 257, 258, 1, 259})
            QVERIFY(!model->index(2, 0).data(role).isValid());
        QVERIFY(!model->index(0, 0).data(259).isValid());
        QVERIFY(model->index(3, 0).data(258).value<QImage>().isNull());
        // The load row's object is one for all models.
        fixture.params.records.clear();
        fixture.params.extra = {};
        const auto empty = fixture.model();
        QCOMPARE(names(*empty), "Select...");
        QCOMPARE(empty->index(0, 0).data(0), model->index(3, 0).data(0));
    }

    void anyRowCanBeMadeCurrent()
    {
        Fixture fixture;
        fixture.params.extra = arrowHead("MINE");
        fixture.params.currentIndex = 7; // taken as it is
        const auto model = fixture.model();
        QCOMPARE(model->getCurrentIndex(), 7);
        QCOMPARE(model->currentArrowHead().shownName, "MINE");
        SignalLog log(*model);
        for (const int row : {1, 1, 2, 3, -1, INT_MIN}) {
            model->setCurrentIndex(row);
            QCOMPARE(log.take(), told);
            QCOMPARE(model->getCurrentIndex(), row);
            if (row >= 0)
                QCOMPARE(model->currentArrowHead().shownName, row == 1 ? "OPEN" : "MINE");
            else
                QVERIFY_THROWS_EXCEPTION(std::out_of_range, model->currentArrowHead());
        }
        model->setCurrentIndex(0);
        log.take();
        for (const int bad : {4, INT_MAX})
            model->setCurrentIndex(bad);
        QCOMPARE(log.take(), "");
        QCOMPARE(model->currentArrowHead().shownName, "DOT");
    }

    void anInternalNameSelects()
    {
        Fixture fixture;
        fixture.params.extra = arrowHead("MINE");
        const auto model = fixture.model();
        SignalLog log(*model);
        const std::pair<const char*, int> known[] = {{"_OPEN", 1}, {"_MINE", 2}, {"_DOT", 0}, {"_DOT", 0}};
        for (const auto& [name, row] : known) {
            model->selectArrowHead(name);
            QCOMPARE(model->getCurrentIndex(), row);
            QCOMPARE(log.take(), told);
        }
        for (const char* name : {"_dot", "_DO", "DOT", ""})
            model->selectArrowHead(name);
        QCOMPARE(log.take(), "");
        QCOMPARE(model->getCurrentIndex(), 0);
    }

    void theChoosersAnswerBecomesCurrent()
    {
        Fixture fixture;
        QStringList answers{"OPEN", "MINE", "OTHER", "DOT"};
        fixture.params.chooser = [&] { return arrowHead(answers.takeFirst()); };
        const auto model = fixture.model();
        const velmtest::RowMirror mirror(*model);
        SignalLog log(*model);
        QtWindowParent parent(nullptr, nullptr);
        const std::pair<const char*, int> rows[] = {{"DOT OPEN Select...", 1},
                                                    {"DOT OPEN - Select...", 2},
                                                    {"DOT OPEN - Select...", 2},
                                                    {"DOT OPEN - Select...", 0}};
        for (const auto& [shown, current] : rows) {
            const QString chosen = answers.first();
            QCOMPARE(model->showArrowHeadsDialog(-5, &parent), current);
            QCOMPARE(names(*model), shown);
            QCOMPARE(model->currentArrowHead().shownName, chosen);
            QCOMPARE(log.take(), "modelAboutToBeReset modelReset " + told);
        }
    }

    void withoutAnAnswerOnlyTheSignalsCome()
    {
        Fixture fixture;
        for (const bool asks : {false, true}) {
            if (asks)
                fixture.params.chooser = [] { return ArrowHeadRecord{{}, "no internal name", {}}; };
            const auto model = fixture.model();
            model->setCurrentIndex(1);
            SignalLog log(*model);
            QCOMPARE(model->showArrowHeadsDialog(INT_MAX), 1);
            QCOMPARE(log.take(), "modelAboutToBeReset modelReset " + told);
            QCOMPARE(names(*model), "DOT OPEN Select...");
        }
    }

    void itIsAReactorAsLongAsItLives()
    {
        Fixture fixture;
        OdApDocManager manager;
        int calls = 0;
        {
            const auto model = fixture.model([&] { return ++calls, &manager; });
            QCOMPARE(calls, 1);
            SignalLog log(*model);
            manager.close(manager.open(std::make_unique<OdApDocument>(L"a.dxf", nullptr)));
            QCOMPARE(log.take(), "");
        }
        QCOMPARE(calls, 2);
        manager.open(
            std::make_unique<OdApDocument>(L"a.dxf", nullptr)); // the sanitizers see a call to a model that is gone
        const auto factoryMade =
            createArrowHeadModel(fixture.params, fixture.gui, fixture.dialogs, {}, [] { return nullptr; });
        QCOMPARE(factoryMade->rowCount(), 3);
    }

    void viewsStayRightUnderRandomChange()
    {
        Fixture fixture;
        QString answer;
        fixture.params.chooser = [&] { return answer.isEmpty() ? ArrowHeadRecord() : arrowHead(answer); };
        const auto model = fixture.model();
        const velmtest::RowMirror mirror(*model);
        velmtest::ChangeScript script(64);
        const auto name = [](QRandomGenerator& random) {
            return QStringList{"", "DOT", "OPEN", "A", "B"}[random.bounded(5)];
        };
        script.add("set", [&](QRandomGenerator& random) { model->setCurrentIndex(random.bounded(-3, 7)); });
        script.add("select", [&](QRandomGenerator& random) { model->selectArrowHead('_' + name(random)); });
        script.add("choose", [&](QRandomGenerator& random) {
            answer = name(random);
            model->showArrowHeadsDialog(0);
        });
        QVERIFY(script.run(500, [&] { return mirror.isRight() && model->getCurrentIndex() < model->rowCount(); }));
    }
};

QTEST_GUILESS_MAIN(TestArrowHeadModel)
#include "tst_arrowheadmodel.moc"
