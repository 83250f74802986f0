#include "od/odunitsformatter.h"
#include "steps/typedvalues.h"
#include "velm/bridge/conversions.h"

#include <QtTest>

using namespace workbench;

/// What a person types for a point.
class TypedValuesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pointsAreRead_data();
    void pointsAreRead();
};

void TypedValuesTest::pointsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasBase");
    QTest::addColumn<QString>("point");
    const auto row = [](const char* name, const char* text, bool hasBase, const char* point) {
        QTest::newRow(name) << QString::fromUtf8(text) << hasBase << QString::fromUtf8(point);
    };
    row("two coordinates", "3,-4.5", false, "3,-4.5");
    row("blanks around them", " 3 , 4 ", true, "3,4");
    row("the base doesn't matter without the mark", "3,4", true, "3,4");
    row("from the base", "@1,-2", true, "11,18");
    row("the mark alone has a blank behind it", "@ 1,2", true, "11,22");
    row("feet and inches", "1'-2 1/2\",2'", false, "14.5,24");
    row("a base that isn't there", "@1,2", false, "");
    row("one coordinate", "3", true, "");
    row("nothing before the comma", ",4", true, "");
    row("nothing behind the comma", "3,", true, "");
    row("three coordinates", "1,2,3", true, "");
    row("no number", "nan,0", true, "");
    row("no end", "inf,0", true, "");
    row("more than a number holds", "1e400,0", true, "");
    row("farther than a drawing goes", "2000000000,0", true, "");
    row("something behind the number", "3,4x", true, "");
    row("letters that look like digits", "3,\u0664", true, "");
    row("nothing", "", true, "");
}

void TypedValuesTest::pointsAreRead()
{
    QFETCH(const QString, text);
    QFETCH(const bool, hasBase);
    QFETCH(const QString, point);
    const auto read = typedPoint(velm::wxFromQt(text), OdUnitsFormatter(),
                                 hasBase ? std::optional(OdGePoint3d{10.0, 20.0}) : std::nullopt);
    QCOMPARE(read ? QString("%1,%2").arg(read->x).arg(read->y) : QString(), point);
}

QTEST_GUILESS_MAIN(TypedValuesTest)

#include "tst_typedvalues.moc"
