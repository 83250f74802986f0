#include "velm/models/panelmenumodel.h"

#include "support/roletext.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;

namespace {
PanelMenuItem item(const QString& text, const std::function<void()>& action, bool checkable = false)
{
    return {text, action, false, checkable, false};
}

bool isChecked(const PanelMenuModel& model, int row)
{
    return model.data(row, PanelMenuModel::CheckedRole).toBool();
}
} // namespace

class TestPanelMenuModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theRolesOfARow()
    {
        PanelMenuModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.append({"Dock", {}, true, false, false});
        model.append({"Pin", {}, false, true, true});
        using velmtest::roleText;
        QCOMPARE(roleText(model, 0), QString("256 text QString(Dock), 257 checkable bool(false), "
                                             "258 checked bool(false), 259 disabled bool(true)"));
        QCOMPARE(roleText(model, 1), QString("256 text QString(Pin), 257 checkable bool(true), "
                                             "258 checked bool(true), 259 disabled bool(false)"));
        QVERIFY(!model.data(0, Qt::DisplayRole).isValid());
        QVERIFY(!model.data(2, PanelMenuModel::TextRole).isValid());
    }

    void entriesAreFoundByTheirTextAlone()
    {
        PanelMenuModel model;
        model.append(item("Dock", {}));
        model.append({"Pin", {}, true, true, true});
        QCOMPARE(model.find(item("Pin", [] {})), std::optional<int>(1));
        QCOMPARE(model.find(item("Close", {})), std::optional<int>());
    }

    void aClickRunsTheActionAndThenTurnsTheMarkAround()
    {
        PanelMenuModel model;
        QString log;
        const auto note = [&] { log += isChecked(model, 0) ? "on " : "off "; };
        model.append(item("Pin", note, true));
        model.append(item("Close", note));
        velmtest::SignalLog signalLog(model);
        model.menuItemClicked(0);
        QVERIFY(isChecked(model, 0));
        model.menuItemClicked(0);
        QVERIFY(!isChecked(model, 0));
        model.menuItemClicked(1);
        QVERIFY(!isChecked(model, 1));
        QCOMPARE(log, QString("off on off "));
        QCOMPARE(signalLog.take(), QString());
    }

    void aClickWithoutAnEntryOrAnAction()
    {
        PanelMenuModel model;
        model.menuItemClicked(0);
        model.append(item("Pin", {}, true));
        model.menuItemClicked(-1);
        model.menuItemClicked(1);
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call, model.menuItemClicked(0));
        QVERIFY(!isChecked(model, 0));
    }

    void anActionMayRefreshTheMenu()
    {
        PanelMenuModel model;
        const QString captured(100, 'x'); // too long for the function's own storage
        model.append(item(
            "Empty",
            [&model, captured] {
                model.clear();
                QCOMPARE(captured.size(), 100);
            },
            true));
        model.menuItemClicked(0);
        QCOMPARE(model.size(), 0);
    }
};

QTEST_GUILESS_MAIN(TestPanelMenuModel)
#include "tst_panelmenumodel.moc"
