#include "velm/models/propertieslistmodel.h"

#include "support/roletext.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <stdexcept>

using namespace velm;
using Model = PropertiesListModel;
using velmtest::SignalLog;

namespace {
/// A property with what doesn't matter left out.
void append(Model& model, const QString& label, const QVariant& value, const std::function<void()>& handler = {},
            bool hasButton = false, Model::Type type = Model::Text)
{
    model.appendProperty(label, handler, hasButton, value, false, type);
}

/// As the tester wants a list to be: without rows below its rows.
class FlatModel : public Model
{
public:
    using Model::Model;
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : Model::rowCount(); }
};
} // namespace

class TestPropertiesListModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theRolesOfARow()
    {
        Model model("Sheet");
        model.appendProperty("Size", {}, true, 1, true, Model::ComboBox, "of the paper", {"A4", "A3"});
        append(model, "Fit", true, {}, false, Model::CheckBox);
        append(model, "Logo", {}, {}, true, Model::Image);
        append(model, "Snap", false, {}, false, Model::Switch);
        append(model, "Name", "Plan");
        QCOMPARE(model.QObject::property("title"), QVariant("Sheet"));
        using velmtest::roleText;
        QCOMPARE(
            roleText(model, 0),
            QString(
                "0 propLabel QString(Size), 1 propValue int(1), 2 propHasButton bool(true), 3 propReadOnly bool(true), "
                "4 propBool bool(false), 5 propIsImage bool(false), 6 propIsComboBox bool(true), "
                "7 propIsCheckBox bool(false), 8 propIsSwitch bool(false), 9 propIsText bool(false), "
                "10 propChoices QStringList(A4/A3), 11 propToolTip QString(of the paper)"));
        QStringList told;
        for (int row = 1; row < 5; ++row) {
            QStringList roles = roleText(model, row).split(", ");
            roles =
                roles.filter(QRegularExpression("^[01] |true")).replaceInStrings(QRegularExpression("\\d+ prop"), {});
            told += roles.join(' ');
        }
        QCOMPARE(told, QStringList({"Label QString(Fit) Value bool(true) Bool bool(true) IsCheckBox bool(true)",
                                    "Label QString(Logo) Value QString() HasButton bool(true) IsImage bool(true)",
                                    "Label QString(Snap) Value bool(false) Bool bool(true) IsSwitch bool(true)",
                                    "Label QString(Name) Value QString(Plan) IsText bool(true)"}));
        QVERIFY(!model.data(model.index(0), 12).isValid());
        QVERIFY(!model.data(QModelIndex(), Model::LabelRole).isValid());
    }

    void rowsStandInTheOrderInWhichTheyCame()
    {
        FlatModel model("Sheet");
        SignalLog log(model);
        append(model, "b", 1);
        append(model, "a", 2);
        append(model, "b", "the label is taken");
        append(model, "c", 3);
        QCOMPARE(velmtest::rowText(model, Model::LabelRole), QString("b a c"));
        QCOMPARE(velmtest::rowText(model, Model::ValueRole), QString("1 2 3"));
        QCOMPARE(log.take(), QString());
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(model.setProperty("c", 4));
    }

    void theCountIsThatOfTheListBelowARowAsWell()
    {
        Model model("Sheet");
        append(model, "a", 1);
        append(model, "b", 2);
        QCOMPARE(model.rowCount(model.index(0)), 2);
    }

    void propertiesAreKnownByTheirLabels()
    {
        Model model("Sheet");
        append(model, "a", 1);
        QVERIFY(model.hasProperty("a"));
        QCOMPARE(model.property("a"), QVariant(1));
        QVERIFY(!model.hasProperty("unknown"));
        QVERIFY(!model.property("unknown").isValid());
        QVERIFY(!model.setProperty("unknown", 1));
        QVERIFY(!model.setComboBoxProperty("unknown", 1, {}));
        QVERIFY(!model.isDeletingImage("unknown"));
        QVERIFY(!model.hasProperty("unknown"));
    }

    void theOwnersChangeCallsTheHandlerAndThenSignals()
    {
        Model model("Sheet");
        QStringList log;
        append(model, "first", 1);
        append(model, "a", 1, [&] { log += "handler " + model.property("a").toString(); });
        connect(&model, &Model::dataChanged, this,
                [&](const QModelIndex& from, const QModelIndex& to, const QList<int>& roles) {
                    log += QString("signal %1 %2 %3").arg(from.row()).arg(to.row()).arg(roles.value(0));
                });
        QVERIFY(model.setProperty("a", 2));
        QCOMPARE(log, QStringList({"handler 2", "signal 1 1 1"}));
        QVERIFY(model.setProperty("a", 2));
        QCOMPARE(log.size(), 2);
    }

    void choicesAreSignalledOnlyWithAnotherIndex()
    {
        Model model("Sheet");
        QString seen;
        const auto choices = [&] { return model.data(model.index(0), Model::ChoicesRole).toStringList().join('/'); };
        model.appendProperty("Size", [&] { seen = choices(); }, false, 0, false, Model::ComboBox, {}, {"A4"});
        SignalLog log(model);
        QVERIFY(model.setComboBoxProperty("Size", 0, {"A4", "A3"}));
        QCOMPARE(choices(), QString("A4/A3"));
        QCOMPARE(log.take(), QString());
        QCOMPARE(seen, QString());
        QVERIFY(model.setComboBoxProperty("Size", 2, {"A4", "A3", "A2"}));
        QCOMPARE(seen, QString("A4/A3/A2"));
        QCOMPARE(log.take(), QString("dataChanged(0,0, 0,0, [1])"));
        QCOMPARE(model.property("Size"), QVariant(2));
    }

    void thePagesChangeCallsTheHandlerAndIsNotSignalled_data()
    {
        const auto row = velmtest::columns<QVariant, QVariant, bool>("before", "value", "isTaken");
        row("a bool", false, true, true);
        row("a number", 1, 2, true);
        row("a text", "a", "b", true);
        row("the present text", "a", "a", false);
        row("a floating number is none of the known types", 1.5, 2.5, false);
        row("nothing for nothing", QVariant(), QVariant(), false);
    }
    void thePagesChangeCallsTheHandlerAndIsNotSignalled()
    {
        QFETCH(QVariant, before);
        QFETCH(QVariant, value);
        QFETCH(bool, isTaken);
        Model model("Sheet");
        QVariant seen;
        append(model, "first", 1);
        append(model, "a", before, [&] { seen = model.property("a"); });
        SignalLog log(model);
        model.valueChanged(value, 1);
        QCOMPARE(model.property("a"), isTaken ? value : before);
        QCOMPARE(seen, isTaken ? value : QVariant());
        QCOMPARE(log.take(), QString());
    }

    void aValueOfAnotherTypeIsRefusedWithAWarning()
    {
        Model model("Sheet");
        append(model, "a", true, [] { QFAIL("the handler was called"); });
        for (const QVariant& value : {QVariant(0), QVariant("false"), QVariant()}) {
            QTest::ignoreMessage(QtWarningMsg, "Property type does not match the value type");
            model.valueChanged(value, 0);
            QCOMPARE(model.property("a"), QVariant(true));
        }
        model.valueChanged(false, -1);
        model.valueChanged(false, 1);
        QCOMPARE(model.property("a"), QVariant(true));
    }

    void aPropertyWithAButtonCallsItsHandlerForTheButtonAlone()
    {
        Model model("Sheet");
        int calls = 0;
        append(
            model, "file", "a.txt", [&] { ++calls; }, true);
        model.valueChanged("b.txt", 0);
        QVERIFY(model.setProperty("file", "c.txt"));
        QCOMPARE(model.property("file"), QVariant("c.txt"));
        QCOMPARE(calls, 0);
        model.loadFile(0);
        QCOMPARE(calls, 1);
        // It is no image.
        model.pickImage(0);
        model.deleteImage(0);
        QCOMPARE(calls, 1);
    }

    void aButtonWithoutAHandlerDoesNothing()
    {
        Model model("Sheet");
        append(model, "image", {}, {}, true, Model::Image);
        model.loadFile(0);
        model.pickImage(0);
        model.deleteImage(0);
        QVERIFY(!model.isDeletingImage("image"));
    }

    void oneHandlerPicksAndDeletesAnImage()
    {
        Model model("Sheet");
        QStringList log;
        append(model, "other", {}, {}, true, Model::Image);
        const auto note = [&] {
            log += model.isDeletingImage("image") ? "delete" : "pick";
            if (model.isDeletingImage("other"))
                log += "wrong image";
        };
        append(model, "image", {}, note, true, Model::Image);
        model.pickImage(1);
        model.deleteImage(1);
        model.loadFile(1);
        QCOMPARE(log, QStringList({"pick", "delete", "pick"}));
    }

    void aFailedDeletionIsOver()
    {
        Model model("Sheet");
        append(
            model, "image", {}, [] { throw std::runtime_error("disk full"); }, true, Model::Image);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, model.deleteImage(0));
        QVERIFY(!model.isDeletingImage("image"));
    }
};

QTEST_GUILESS_MAIN(TestPropertiesListModel)
#include "tst_propertieslistmodel.moc"
