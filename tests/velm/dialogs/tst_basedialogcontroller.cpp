#include "velm/dialogs/basedialogcontroller.h"

#include "support/signallog.h"
#include "support/table.h"
#include "velm/dialogs/basepopupcontroller.h"

#include <QTest>

using namespace velm;

namespace {
class Controller : public BaseDialogController
{
public:
    bool answer = true;
    QStringList log;

private:
    bool beforeOk() override
    {
        log += "ok";
        return answer;
    }
    bool beforeCancel() override
    {
        log += "cancel";
        return answer;
    }
};
} // namespace

class TestBaseDialogController : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aDialogAsksBeforeItEnds_data()
    {
        const auto row = velmtest::columns<int, bool, QStringList, bool>("code", "answer", "asked", "mayEnd");
        row("OK may end", 5100, true, {"ok"}, true);
        row("OK is refused", 5100, false, {"ok"}, false);
        row("Cancel may end", 5101, true, {"cancel"}, true);
        row("Cancel is refused", 5101, false, {"cancel"}, false);
        row("another button ends unasked", 5103, false, QStringList(), true);
        row("zero ends unasked", 0, false, QStringList(), true);
    }
    void aDialogAsksBeforeItEnds()
    {
        QFETCH(int, code);
        QFETCH(bool, answer);
        QFETCH(QStringList, asked);
        QFETCH(bool, mayEnd);
        Controller controller;
        controller.answer = answer;
        QCOMPARE(controller.beforeEndModal(code), mayEnd);
        QCOMPARE(controller.beforeEndNonModal(code), mayEnd);
        QCOMPARE(controller.log, asked + asked);
    }

    void theBaseLetsEveryDialogEnd()
    {
        BaseDialogController controller;
        QVERIFY(controller.beforeEndModal(5100) && controller.beforeEndModal(5101));
        controller.afterReset();
        QVERIFY(!controller.parent());
        QVERIFY(!controller.parentDialog());
        auto* dialog = reinterpret_cast<wxDialog*>(&controller); // never followed
        controller.setParentDialog(dialog);
        QCOMPARE(controller.parentDialog(), dialog);
    }

    void pagesFindTheSignalsInTheirOrder()
    {
        const QMetaObject& dialog = BaseDialogController::staticMetaObject;
        QCOMPARE(dialog.method(dialog.methodOffset()).methodSignature(), QByteArray("closeDialog()"));
        QCOMPARE(dialog.method(dialog.methodOffset() + 1).methodSignature(), QByteArray("endModal()"));
        BasePopupController popup;
        velmtest::SignalLog log(popup);
        Q_EMIT popup.closed();
        QCOMPARE(log.take(), QString("closed"));
    }
};

QTEST_APPLESS_MAIN(TestBaseDialogController)
#include "tst_basedialogcontroller.moc"
