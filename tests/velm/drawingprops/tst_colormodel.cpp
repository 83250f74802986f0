#include "colorcombo.h"

#include "support/changescript.h"
#include "support/members.h"
#include "support/rowmirror.h"
#include "support/signallog.h"

#include <QJSEngine>
#include <QTest>
#include <QTranslator>

#include <limits>

using namespace colorcombo;
using velmtest::SignalLog;

namespace {
const QString noRows = "";
constexpr int badRows[] = {-2, -1, 1000, INT_MAX, INT_MIN};
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
