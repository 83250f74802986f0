#include "velm/table/columnpersistence.h"

#include "velm/table/columns.h"

#include "support/scopes.h"

#include <QTest>

#include <limits>

using namespace velm;
using namespace velm::columnpersistence;

namespace {
/// What is stored of a column: "120@2", hidden ones with an h.
QString stored(const wxString& column, const wxString& dialog = "Layers")
{
    bool hidden = false;
    long position = 99;
    const long width = readColumnDataFromRegistry(column, -1, 99, hidden, position, dialog);
    return QString("%1@%2%3").arg(width).arg(position).arg(hidden ? QString("h") : QString());
}

NamedState column(const char* id, int position, int width, bool visible = true)
{
    return {id, {position, width, 0, visible}};
}
} // namespace

class TestColumnPersistence : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readFillsInFromTheHeader()
    {
        const velmtest::TemporaryConfig store;
        QVERIFY(!read("", {50, 2, true}, "Layers"));
        const auto unsaved = read("Name", {50, 2, false}, "Layers");
        QCOMPARE(unsaved->width, 50);
        QCOMPARE(unsaved->position, 2);
        QVERIFY(!unsaved->visible);

        write("", {1, 100, 0, true}, "Layers");
        QVERIFY(getSavedColumnDataList("Layers").empty());
        write("Name", {1, 70, 0, false}, "Layers");
        QCOMPARE(stored("Name"), "0@1h");
        const auto hidden = read("Name", {50, 2, true}, "Layers");
        QCOMPARE(hidden->width, 50); // a stored width of 0 is none
        QCOMPARE(hidden->position, 1);
        QVERIFY(!hidden->visible);
    }

    void storedNonsenseStaysWithinAnInteger()
    {
        const velmtest::TemporaryConfig store;
        writeColumnDataToRegistry("Name", std::numeric_limits<int>::min(), -5, "Layers");
        const auto huge = read("Name", {50, 2, true}, "Layers");
        QCOMPARE(huge->width, std::numeric_limits<int>::max());
        QCOMPARE(huge->position, -5);
    }

    void positionsStepAroundColumnsThatArentThere_data()
    {
        QTest::addColumn<QList<int>>("foreignWidths");
        QTest::addColumn<QString>("expected");
        QTest::newRow("no foreign columns") << QList<int>{} << "50@0 60@1 0@2h";
        QTest::newRow("a width that is no position of the table") << QList{120} << "50@0 60@1 0@2h";
        QTest::newRow("a width is taken for a position") << QList{1} << "50@0 60@2 0@3h";
        QTest::newRow("the first position too") << QList{1, 2} << "50@0 60@3 0@4h";
        QTest::newRow("widths are taken in order") << QList{3, 1} << "50@0 60@2 0@4h";
        QTest::newRow("the same width twice") << QList{1, 1} << "50@0 60@3 0@4h";
        QTest::newRow("hidden ones don't count") << QList{-1} << "50@0 60@1 0@2h";
    }
    void positionsStepAroundColumnsThatArentThere()
    {
        const velmtest::TemporaryConfig store;
        QFETCH(QList<int>, foreignWidths);
        for (int i = 0; i < foreignWidths.size(); ++i)
            writeColumnDataToRegistry(wxString::Format("foreign %d", i), foreignWidths[i], 70 + i, "Layers");
        // The table's own columns don't count, whatever was stored before; nor do other dialogs'.
        writeColumnDataToRegistry("B", 1, 0, "Layers");
        writeColumnDataToRegistry("foreign", 1, 0, "Blocks");
        writeAll({column("C", 2, 70, false), column("A", 0, 50), column("B", 1, 60)}, "Layers");
        QTEST(QStringList({stored("A"), stored("B"), stored("C")}).join(' '), "expected");
        if (!foreignWidths.isEmpty())
            QVERIFY(stored("foreign 0").contains("@70"));
    }

    void aColumnWithoutAnIdTakesItsPositionAllTheSame()
    {
        const velmtest::TemporaryConfig store;
        writeColumnDataToRegistry("foreign", 1, 0, "Layers");
        writeAll({column("A", 0, 50), column("", 1, 60), column("B", 2, 70)}, "Layers");
        QCOMPARE(stored("A") + ' ' + stored("B"), "50@0 70@3");
        QCOMPARE(getSavedColumnDataList("Layers").size(), std::size_t(3));
    }
};

QTEST_APPLESS_MAIN(TestColumnPersistence)
#include "tst_columnpersistence.moc"
