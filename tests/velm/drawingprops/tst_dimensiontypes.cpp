#include "velm/drawingprops/dimensiontypes.h"
#include "velm/drawingprops/dimstylesorter.h"

#include "od/oddbdatabase.h"
#include "od/oddbdimension.h"
#include "support/table.h"
#include "support/vtableslots.h"

#include <QTest>

#include <algorithm>
#include <limits>

using namespace velm;

namespace {
// What a host may derive.
class HostRadialDimension : public OdDbRadialDimension
{};
class HostRotatedDimension : public OdDbRotatedDimension
{};
class HostAlignedDimension : public OdDbAlignedDimension
{};

/// "2 Angular 3", or "-" for none.
QString text(const CDimensionTypeInfo* type)
{
    if (!type)
        return QStringLiteral("-");
    return QStringLiteral("%1 %2 %3")
        .arg(type->number())
        .arg(QString::fromWCharArray(type->name()))
        .arg(type->valueKind());
}

template <typename Entity>
QString typeOf()
{
    const Entity entity;
    return text(getDimensionType(&entity));
}

std::unique_ptr<OdDbDatabase> drawing(std::initializer_list<const wchar_t*> dimStyles)
{
    auto database = std::make_unique<OdDbDatabase>();
    for (const wchar_t* name : dimStyles)
        database->addDimStyle(name);
    return database;
}
} // namespace

class TestDimensionTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void thereAreSix()
    {
        QStringList types;
        for (const CDimensionTypeInfo* type : dimensionTypes()) {
            types += text(type);
            QCOMPARE(getDimensionType(type->number()), type);
        }
        QCOMPARE(types, QStringList(
                            {"0 Linear 7", "2 Angular 3", "4 Radius 7", "3 Diameter 7", "6 Ordinate 7", "7 Leader 7"}));
        for (const int number : {-1, 1, 5, 8})
            QVERIFY(!getDimensionType(number));
    }

    void aNameTellsTheType_data()
    {
        const auto row = velmtest::columns<QString, QString>("name", "type");
        row("a record name", "Standard$2", "2 Angular 3");
        row("a display name without regard to case", "Standard: angular", "2 Angular 3");
        row("blanks left of the type don't count", "Standard:  \tRadius", "4 Radius 7");
        row("blanks right of it do", "Standard: Radius ", "-");
        row("only what follows the last sign counts", "A: Linear$2: Leader", "7 Leader 7");
        row("a colon hides a dollar sign", "A: B$2", "-");
        row("neither sign", "Standard", "-");
        row("no number", "Standard$x", "-");
        row("nothing behind the sign", "Standard$", "-");
        row("something behind the number", "Standard$2x", "-");
        row("a number of no type", "Standard$5", "-");
        row("a number that is one only when cut to 32 bits", "Standard$4294967298", "-");
    }
    void aNameTellsTheType()
    {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QCOMPARE(text(getDimensionType(OdString(name.toStdWString()))), type);
    }

    void anEntityTellsTheType()
    {
        QCOMPARE(typeOf<OdDbRadialDimension>(), "4 Radius 7");
        QCOMPARE(typeOf<OdDbRadialDimensionLarge>(), "4 Radius 7");
        QCOMPARE(typeOf<OdDbRotatedDimension>(), "0 Linear 7");
        QCOMPARE(typeOf<OdDbArcDimension>(), "0 Linear 7");
        QCOMPARE(typeOf<OdDbAlignedDimension>(), "0 Linear 7");
        QCOMPARE(typeOf<OdDb2LineAngularDimension>(), "2 Angular 3");
        QCOMPARE(typeOf<OdDb3PointAngularDimension>(), "2 Angular 3");
        QCOMPARE(typeOf<OdDbDiametricDimension>(), "3 Diameter 7");
        QCOMPARE(typeOf<OdDbOrdinateDimension>(), "6 Ordinate 7");
        QCOMPARE(typeOf<OdDbLeader>(), "7 Leader 7");
        QCOMPARE(typeOf<OdDbFcf>(), "7 Leader 7");
        QCOMPARE(typeOf<OdDbDimension>(), "-");
        QCOMPARE(typeOf<OdDbLine>(), "-");
        // Radial and rotated ones must be exactly that, of the others a derived class will do.
        QCOMPARE(typeOf<HostRadialDimension>(), "-");
        QCOMPARE(typeOf<HostRotatedDimension>(), "-");
        QCOMPARE(typeOf<HostAlignedDimension>(), "0 Linear 7");
        QCOMPARE(text(getDimensionType(static_cast<const OdDbEntity*>(nullptr))), "-");
    }

    void anObjectIdTellsTheType()
    {
        OdDbDatabase database;
        OdDbEntity* leader = database.addEntity(std::make_unique<OdDbLeader>(), database.modelSpace());
        QCOMPARE(text(getDimensionType(leader->objectId())), "7 Leader 7");
        QVERIFY_THROWS_EXCEPTION(OdError_NotThatKindOfClass, getDimensionType(database.layers()[0]->objectId()));
        leader->erase();
        QCOMPARE(text(getDimensionType(leader->objectId())), "-");
        QCOMPARE(text(getDimensionType(OdDbObjectId::kNull)), "-");
    }

    void namesOfChildStylesTurnIntoEachOther()
    {
        const auto database = drawing({L"Standard$2", L"A$2", L"Standard$5", L"A", L"A$B", L"A$B$7"});
        QCOMPARE(toDisplayName("Standard$2", database.get()), wxString("Standard: Angular"));
        QCOMPARE(fromDisplayName("Standard: Angular", nullptr), wxString("Standard$2"));
        QCOMPARE(toDisplayName("A$B$7", database.get()), wxString("A$B: Leader"));
        QCOMPARE(fromDisplayName("A$B: Leader", nullptr), wxString("A$B$7"));
        for (const char* name : {"Standard", "Standard$4", "Standard$5", "A$B", "Standard: Angular", ""})
            QCOMPARE(toDisplayName(name, database.get()), wxString(name));
        QCOMPARE(toDisplayName("Standard$2", nullptr), wxString("Standard$2"));
        // A user's style whose name only looks like that of a child.
        QCOMPARE(toDisplayName("A$2", drawing({L"A$2"}).get()), wxString("A$2"));
        for (const char* name : {"Standard", "Standard: Angle", "Standard$2", ":", ""})
            QCOMPARE(fromDisplayName(name, nullptr), wxString(name));
    }

    void stylesAreSortedByWhatIsShown()
    {
        const auto database = drawing({L"Standard$0", L"Standard$2", L"Standard$4"});
        std::vector<OdString> names{L"Standards", L"Standard$4", L"beta",     L"Standard$0",
                                    L"Alpha",     L"Standard$2", L"standard", L"GAMMA"};
        std::stable_sort(names.begin(), names.end(), DimstyleSorter(database.get()));
        const std::vector<OdString> expected{L"Alpha",      L"beta",       L"GAMMA",      L"standard",
                                             L"Standard$2", L"Standard$0", L"Standard$4", L"Standards"};
        QCOMPARE(names, expected);
        const DimstyleSorter withoutDatabase(nullptr);
        QVERIFY(withoutDatabase(L"Standard$0", L"Standard$2"));
        QVERIFY(!withoutDatabase(L"STANDARD", L"standard") && !withoutDatabase(L"standard", L"STANDARD"));
    }

    void theOperationsKeepTheirSlots()
    {
#ifdef VELM_READS_VTABLES
        using velmtest::slotOf;
        QCOMPARE((QList{slotOf(&CDimensionTypeInfo::number), slotOf(&CDimensionTypeInfo::name),
                        slotOf(&CDimensionTypeInfo::valueKind)}),
                 velmtest::slotsFrom(0, 3));
#else
        QSKIP("only read where the tables are laid out so");
#endif
    }
};

QTEST_APPLESS_MAIN(TestDimensionTypes)
#include "tst_dimensiontypes.moc"
