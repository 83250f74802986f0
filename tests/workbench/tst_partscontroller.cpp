#include "panels/partscontroller.h"
#include "support/scopes.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;
using M = PartsModel;

/// The long list of parts: how it is filled, sorted and searched.
class PartsControllerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itFillsInPiecesUntilItIsFull()
    {
        PartsController controller(25'000);
        const QAbstractItemModelTester tester(controller.parts(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy progress(&controller, &PartsController::progressChanged);
        QSignalSpy done(&controller, &PartsController::timeTextChanged);
        controller.fill();
        QVERIFY(controller.isFilling());
        QCOMPARE(controller.parts()->rowCount(), 0);
        QVERIFY(done.wait());
        QVERIFY(!controller.isFilling());
        QCOMPARE(controller.parts()->rowCount(), 25'000);
        QCOMPARE(controller.progress(), 1.0);
        QVERIFY(progress.size() > 2);
        QVERIFY(controller.timeText().startsWith("Filled in "));
        QCOMPARE(controller.rowsText(), QLocale().toString(25'000) + " rows");

        controller.setSearchText("bolt 17-");
        QVERIFY(controller.table()->rowCount() > 0);
        QVERIFY(controller.table()->rowCount() < 100);
        for (int row = 0; row < controller.table()->rowCount(); ++row)
            QVERIFY(controller.table()->index(row, M::NameColumn).data().toString().startsWith("Bolt 17-"));
    }

    void itStopsWhereItIs()
    {
        PartsController controller(1'000'000);
        QSignalSpy progress(&controller, &PartsController::progressChanged);
        controller.fill();
        QTRY_VERIFY(controller.parts()->rowCount() > 0);
        controller.stop();
        const int rows = controller.parts()->rowCount();
        QVERIFY(!controller.isFilling());
        QVERIFY(rows < 1'000'000);
        const qsizetype told = progress.size();
        controller.stop();
        for (int turn = 0; turn < 3; ++turn) // whatever else was due
            QCoreApplication::processEvents();
        QCOMPARE(controller.parts()->rowCount(), rows);
        QCOMPARE(progress.size(), told);
    }

    void itBeginsAnewWithTheSameColumns()
    {
        const velmtest::TemporaryConfig config; // the others begin with all columns in place
        PartsController controller(100);
        controller.fill();
        QTRY_VERIFY(!controller.isFilling());
        const QVariant first = controller.parts()->index(0, M::NameColumn).data();
        controller.table()->moveColumn(M::DateColumn, 0);
        controller.fill();
        QCOMPARE(controller.parts()->rowCount(), 0);
        QTRY_COMPARE(controller.parts()->rowCount(), 100);
        QCOMPARE(controller.parts()->index(0, M::NameColumn).data(), first);
        QCOMPARE(controller.table()->mapProxyColumnToSource(0), int(M::DateColumn));
    }

    void itSortsByWhatTheTextsMean()
    {
        PartsController controller(2000);
        controller.fill();
        QTRY_VERIFY(!controller.isFilling());
        // The texts as one number each.
        const auto rank = [&](int column, int row) {
            const QString text = controller.table()->index(row, column).data().toString();
            const QStringList name = text.mid(5).split('-');
            switch (column) {
            case M::NameColumn:
                return name[0].toDouble() * 1000 + name[1].toDouble();
            case M::SizeColumn:
                return text.section(' ', 0, 0).toDouble() * (text.endsWith("Kb")   ? 1024
                                                             : text.endsWith("Mb") ? 1 << 20
                                                                                   : 1);
            case M::DateColumn:
                return static_cast<double>(QDate::fromString(text, Qt::ISODate).toJulianDay());
            default:
                return text.toDouble();
            }
        };
        for (const int column : {M::NumberColumn, M::NameColumn, M::ValueColumn, M::SizeColumn, M::DateColumn}) {
            QVERIFY(controller.table()->doSort(column, true, true));
            QVERIFY(controller.timeText().startsWith(
                "Sorted by " + controller.table()->headerData(column, Qt::Horizontal).toString() + " in "));
            for (int row = 1; row < 2000; ++row)
                QVERIFY2(rank(column, row - 1) <= rank(column, row),
                         qPrintable(QString("%1, %2").arg(column).arg(row)));
            QVERIFY(rank(column, 0) < rank(column, 1999));
        }
    }

    void theMarkIsTheOnlyThingToSet()
    {
        PartsModel parts;
        const QAbstractItemModelTester tester(&parts, QAbstractItemModelTester::FailureReportingMode::QtTest);
        parts.append(3);
        const QModelIndex mark = parts.index(1, M::CheckedColumn);
        const QVariant other = mark.data(Qt::CheckStateRole).toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
        QSignalSpy changed(&parts, &QAbstractItemModel::dataChanged);
        QVERIFY(parts.setData(mark, other, Qt::CheckStateRole));
        QCOMPARE(mark.data(Qt::CheckStateRole), other);
        QCOMPARE(changed.size(), 1);
        QVERIFY(!parts.setData(parts.index(1, M::NameColumn), other, Qt::CheckStateRole));
        QVERIFY(!parts.setData(parts.index(1, M::NameColumn), "Other", Qt::EditRole));
        QVERIFY(!parts.setData(QModelIndex(), other, Qt::CheckStateRole));
    }

private:
    velmtest::TemporaryConfig m_config;
};

QTEST_GUILESS_MAIN(PartsControllerTest)
#include "tst_partscontroller.moc"
