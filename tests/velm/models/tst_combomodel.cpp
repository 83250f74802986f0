#include "velm/models/combomodel.h"
#include "velm/models/stringlistmodel.h"

#include "support/roletext.h"
#include "support/rowtext.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;
using velmtest::roleText;

class TestComboModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theRolesOfARow()
    {
        ComboModel model(std::vector<ComboItem>{ComboItem("A4", "a4.svg", 16, 12, 297), ComboItem::separator()});
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(roleText(model, 0),
                 QString("5 whatsThis QString(text), 256 text QString(A4), 257 value QString(297), "
                         "258 icon QString(a4.svg), 259 iconWidth int(16), 260 iconHeight int(12)"));
        QCOMPARE(roleText(model, 1), QString("5 whatsThis QString(separator), 256 text QString(), 257 value QString(), "
                                             "258 icon QString(), 259 iconWidth int(24), 260 iconHeight int(24)"));
        // A combo box is told its text role; the numbers of other views aren't answered.
        QVERIFY(!model.data(0, Qt::DisplayRole).isValid());
        QVERIFY(!model.data(QModelIndex(), ComboModel::TextRole).isValid());
        QVERIFY(!model.data(2, ComboModel::TextRole).isValid());
        QCOMPARE(model.QObject::property("textRole"), QVariant("text"));
    }

    void itemsDifferInAnyOfTheirFields()
    {
        const ComboItem item("A4", "a4.svg", 16, 12, 297);
        QVERIFY(item == ComboItem("A4", "a4.svg", 16, 12, 297));
        QVERIFY(!(item == ComboItem("A3", "a4.svg", 16, 12, 297)));
        QVERIFY(!(item == ComboItem("A4", "a3.svg", 16, 12, 297)));
        QVERIFY(!(item == ComboItem("A4", "a4.svg", 17, 12, 297)));
        QVERIFY(!(item == ComboItem("A4", "a4.svg", 16, 13, 297)));
        QVERIFY(!(item == ComboItem("A4", "a4.svg", 16, 12, 420)));
        QVERIFY(!(ComboItem("", "", 24, 24, {}) == ComboItem::separator()));
        const std::vector<ComboItem> items{ComboItem::separator(), item};
        QCOMPARE(ComboModel(items).find(item), std::optional<int>(1));
    }

    void strings()
    {
        StringListModel model({"red", "green"});
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(roleText(model, 1), QString("256 modelData QString(green)"));
        QCOMPARE(velmtest::rowText(model), QString("red green"));
        QVERIFY(!model.data(0, Qt::EditRole).isValid());
        QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
        QCOMPARE(model.data(1), QString("green"));
        QCOMPARE(model.data(2), QString());
        QCOMPARE(model.data(-1), QString());
    }

    void aStringIsChangedUnderTheRoleOfQml()
    {
        StringListModel model({"red", "green"});
        velmtest::SignalLog log(model);
        model.update(1, "blue");
        model.update(2, "none");
        QCOMPARE(velmtest::rowText(model), QString("red blue"));
        // Not the display role, though it changes, too.
        QCOMPARE(log.take(), QString("dataChanged(1,0, 1,0, [256])"));
    }
};

QTEST_GUILESS_MAIN(TestComboModel)
#include "tst_combomodel.moc"
