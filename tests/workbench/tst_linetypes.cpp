#include "wxtestmain.h"

#include "host/guicontroller.h"
#include "host/pagegroup.h"
#include "linetypes/linetypelist.h"
#include "linetypes/linetypepicture.h"
#include "linetypes/loadlinetypescontroller.h"
#include "od/oddbdatabase.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "support/table.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/ilinetypemodel.h"
#include "velm/images/imageconversions.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <wx/image.h>

#include <limits>

using namespace workbench;

namespace {
constexpr auto reporting = QAbstractItemModelTester::FailureReportingMode::QtTest;
constexpr int okCode = 5100;

/// As in "0-6 8-14".
QString strokesText(const OdArray<double>& dashes, int length)
{
    QStringList result;
    for (const auto& [first, last] : lineTypeStrokes(dashes, length))
        result += QStringLiteral("%1-%2").arg(first).arg(last);
    return result.join(u' ');
}

/// Which pixels of a row are of the colour, and which are clear: "##..".
QString rowOf(const wxBitmap& bitmap, int y, const QColor& colour)
{
    const QImage image = velm::convertImage(bitmap.ConvertToImage());
    QString result;
    for (int x = 0; x < image.width(); ++x) {
        const QColor pixel = image.pixelColor(x, y);
        result += pixel.alpha() == 0 ? '.' : pixel == colour ? '#' : '?';
    }
    return result;
}

QString names(const OdArray<OdDbObjectId>& ids)
{
    QStringList result;
    for (const OdDbObjectId& id : ids)
        result += velm::toQt(id.open<OdDbLinetypeTableRecord>()->getName());
    return result.join(u' ');
}

/// A dialog over a file, with a drawing that has two of its linetypes, one of them with other dashes.
class Fixture
{
public:
    Fixture()
    {
        write("*Rail 10\nA,1,-1\n*Rail 9\nA,2,-1\n*Axis,Long\nA,6,-1,0,-1\nbad\n");
        loadLineType(*database, {"AXIS", {}, {6, -1, 0, -1}});
        loadLineType(*database, {"Rail 9", {}, {9, -9}});
        controller.open(path);
    }

    void write(const QByteArray& text)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QString state(int row) { return controller.table()->index(row, LineTypeTableModel::StateColumn).data().toString(); }
    QString loaded() const
    {
        QStringList result;
        for (const OdString& name : controller.loaded())
            result += velm::toQt(name);
        return result.join(u'/');
    }

    velmtest::TemporaryConfig config;
    QTemporaryDir folder;
    QString path = folder.filePath("own.lin");
    QString chosen; ///< what the person answers when asked for a file
    std::shared_ptr<OdDbDatabase> database = std::make_shared<OdDbDatabase>();
    LoadLineTypesController controller{*database, [this] { return chosen; }};
    QAbstractItemModelTester sourceTester{controller.table()->sourceModel(), reporting};
    QAbstractItemModelTester tester{controller.table(), reporting};
};
} // namespace

/// The host's part of linetypes: lists, pictures, and what the page that loads some talks to.
class LineTypesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theListFollowsItsOptions_data()
    {
        const auto row = velmtest::columns<int, int, QString>("first", "second", "expected");
        row("all", 0, 0, "ByLayer ByBlock Continuous L2 L10 Unused");
        row("without those that every drawing has", 1, 0, "Continuous L2 L10 Unused");
        row("those in use", 0, 1, "ByLayer ByBlock L2 L10");
        row("both", 1, 1, "L2 L10");
    }
    void theListFollowsItsOptions()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(QString, expected);
        PageGroup pages;
        GuiController gui(pages);
        OdDbDatabase database;
        for (const wchar_t* name : {L"Unused", L"L10", L"L2", L"Gone"})
            database.addLinetype(name);
        database.findLinetype(L"Gone")->erase();
        database.findLayer(L"0")->setLinetypeObjectId(database.findLinetype(L"L10")->objectId());
        auto line = std::make_unique<OdDbLine>();
        line->setLinetype(database.findLinetype(L"L2")->objectId());
        OdDbLine* drawn = database.addEntity(std::move(line), database.addBlock(L"B"));
        velm::LoadedLineTypes listed;
        OdDbObjectId wanted;
        QVERIFY(gui.loadLineTypes(&database, second == 0, wanted, first == 0, listed));
        QCOMPARE(names(listed.ids), expected);
        QVERIFY(!gui.loadLineTypes(nullptr, true, wanted, true, listed));
        if (second == 0)
            return;
        // What is asked for is listed all the same; what only erased entities have isn't.
        drawn->erase();
        wanted = database.findLinetype(L"Unused")->objectId();
        QVERIFY(gui.loadLineTypes(&database, false, wanted, first == 0, listed));
        QCOMPARE(names(listed.ids), expected.replace("L2 L10", "L10 Unused"));
    }

    void namesThatEveryDrawingHasLookTheSame()
    {
        PageGroup pages;
        const GuiController gui(pages);
        QCOMPARE(gui.linetypeLocalName(L"BYLAYER"), OdString(L"ByLayer"));
        QCOMPARE(gui.linetypeLocalName(L"byblock"), OdString(L"ByBlock"));
        QCOMPARE(gui.linetypeLocalName(L"CONTINUOUS"), OdString(L"Continuous"));
        QCOMPARE(gui.linetypeLocalName(L"CUT"), OdString(L"CUT"));
    }

    void aPatternIsSeen_data()
    {
        const auto row = velmtest::columns<QList<double>, int, QString>("dashes", "length", "expected");
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        row("dashes", {6, -2}, 40, "0-12 16-28 32-40");
        row("dots have a pixel", {0, -2}, 12, "0-1 4-5 8-9");
        row("small ones are made larger", {0.2, -0.1}, 20, "0-6 9-15 18-20");
        row("large ones come twice", {600, -200}, 40, "0-15 20-35");
        row("a gap first", {-2, 2}, 10, "3-5 8-10");
        row("no pattern", {}, 10, "0-10");
        row("no gap", {1, 0}, 10, "0-10");
        row("nothing but gaps", {-1}, 10, "");
        row("no numbers", {nan, -1}, 10, "0-10");
        row("endless", {inf, -inf}, 10, "0-10");
        row("next to nothing", {1e-320, -1e-320}, 10, "0-10");
        row("no length", {1, -1}, 0, "");
    }
    void aPatternIsSeen()
    {
        QFETCH(QList<double>, dashes);
        QFETCH(int, length);
        QFETCH(QString, expected);
        OdArray<double> pattern;
        for (const double dash : dashes)
            pattern.append(dash);
        QCOMPARE(strokesText(pattern, length), expected);
    }

    void aPictureHasTheLineInItsMiddle()
    {
        PageGroup pages;
        const GuiController gui(pages);
        OdDbDatabase database;
        const OdDbObjectId dotted = loadLineType(database, {"Dotted", {}, {4, -2, 0, -2}})->objectId();
        for (const wxColour& colour : {*wxWHITE, wxColour(1, 1, 1)}) {
            const QColor line = velm::toQt(colour);
            wxBitmap bitmap;
            QVERIFY(gui.drawLineTypeBitmap(36, 9, bitmap, dotted, {}, colour));
            QCOMPARE(bitmap.GetSize(), wxSize(36, 9));
            QCOMPARE(rowOf(bitmap, 4, line), QString("########....#...########....#...####"));
            for (const int y : {0, 3, 5, 8})
                QCOMPARE(rowOf(bitmap, y, line), QString(36, u'.'));
            for (const wchar_t* name : {L"ByLayer", L"ByBlock", L"Continuous"}) {
                QVERIFY(gui.drawLineTypeBitmap(5, 24, bitmap, database.findLinetype(name)->objectId(), {}, colour));
                QCOMPARE(rowOf(bitmap, 11, line), QString("#####"));
                QCOMPARE(rowOf(bitmap, 12, line), QString("#####"));
                QCOMPARE(rowOf(bitmap, 13, line), QString("....."));
            }
        }
        QCOMPARE(velm::ILineTypeModel::createBitmap(36, 9, dotted, gui).size(), QSize(36, 9));
    }

    void whatIsNoLinetypeGivesNoPicture()
    {
        PageGroup pages;
        const GuiController gui(pages);
        OdDbDatabase database;
        OdDbLinetypeTableRecord* record = loadLineType(database, {"Cut", {}, {1, -1}});
        const auto draws = [&](OdDbObjectId id, int width, int height) {
            wxBitmap bitmap;
            const bool done = gui.drawLineTypeBitmap(width, height, bitmap, id, {}, *wxWHITE);
            return done == bitmap.IsOk() && done;
        };
        const OdDbObjectId id = record->objectId();
        QVERIFY(draws(id, 1, 1));
        for (const QSize size : {QSize(0, 5), QSize(5, 0), QSize(-1, 5), QSize(1000000, 5)})
            QVERIFY(!draws(id, size.width(), size.height()));
        QVERIFY(!draws({}, 10, 10));
        QVERIFY(!draws(OdDbObjectId(&database, 9999), 10, 10));
        QVERIFY(!draws(database.currentLayer(), 10, 10));
        record->erase();
        QVERIFY(!draws(id, 10, 10));
        QVERIFY(velm::ILineTypeModel::createBitmap(10, 10, id, gui).isNull());
        QCOMPARE(velm::ILineTypeModel::linetypeName(id, gui), QString());
    }

    void theDialogShowsWhatTheDrawingHas()
    {
        Fixture dialog;
        QCOMPARE(velmtest::rowText(*dialog.controller.table()), QString("Axis Rail 9 Rail 10"));
        QCOMPARE(QStringList({dialog.state(0), dialog.state(1), dialog.state(2)}),
                 QStringList({"Loaded", "Other dashes", ""}));
        QCOMPARE(dialog.controller.problems(), QStringList("Line 7: this isn't understood."));
        QCOMPARE(dialog.controller.table()->selectedSourcesCount(), 1);
        const QModelIndex line = dialog.controller.table()->index(0, LineTypeTableModel::LineColumn);
        QCOMPARE(line.data().toString(), QString("6, -1, 0, -1"));
        QCOMPARE(dialog.controller.strokes(line.data(Qt::DecorationRole).toList(), 10),
                 QVariantList({QPoint(0, 4), QPoint(4, 5), QPoint(5, 9), QPoint(9, 10)}));
    }

    void theChosenOnesAreLoaded()
    {
        Fixture dialog;
        dialog.controller.choose("RAIL 10");
        dialog.controller.table()->shiftSelection(1, 0);
        QVERIFY(dialog.controller.beforeEndModal(okCode));
        QCOMPARE(dialog.loaded(), QString("Rail 9/Rail 10"));
        QVERIFY(dialog.database->findLinetype(L"Rail 9")->dashes() == OdArray<double>({2, -1}));
        QVERIFY(dialog.database->findLinetype(L"Rail 10"));
        QVERIFY(dialog.database->findLinetype(L"AXIS")->comments().isEmpty());
    }

    void aLoadedLinetypeKeepsTheNameOfTheDrawing()
    {
        Fixture dialog;
        dialog.controller.choose("axis");
        QVERIFY(dialog.controller.beforeEndModal(okCode));
        QCOMPARE(dialog.loaded(), QString("AXIS")); // the combo looks for this row
    }

    void withoutAChoiceTheDialogStays()
    {
        Fixture dialog;
        dialog.controller.choose("no such linetype");
        QCOMPARE(dialog.controller.table()->selectedSourcesCount(), 1);
        dialog.controller.table()->clearSelection();
        QVERIFY(!dialog.controller.beforeEndModal(okCode));
        QVERIFY(dialog.controller.beforeEndModal(okCode + 1));
        QCOMPARE(dialog.database->linetypes().size(), std::size_t(5));
    }

    void anotherFileTakesThePlaceOfTheFirst()
    {
        Fixture dialog;
        QSignalSpy changed(&dialog.controller, &LoadLineTypesController::fileChanged);
        dialog.controller.askForFile();
        dialog.chosen = dialog.folder.filePath("missing.lin");
        QVERIFY(waitUntil([&] { return changed.size() == 1; }));
        QCOMPARE(velmtest::rowText(*dialog.controller.table()), QString());
        QVERIFY(dialog.controller.error().contains("missing.lin"));
        QCOMPARE(dialog.controller.problems(), QStringList());
        QVERIFY(!dialog.controller.beforeEndModal(okCode));
        dialog.write("*Z\nA,1,-1\n*Y\nA,1,-1\n");
        dialog.controller.open(dialog.path);
        QCOMPARE(velmtest::rowText(*dialog.controller.table()), QString("Y Z"));
        QVERIFY(dialog.controller.beforeEndModal(okCode));
        QCOMPARE(dialog.loaded(), QString("Y"));
    }

    void aDrawingThatIsClosedUnderTheDialogDoesNoHarm()
    {
        Fixture dialog;
        dialog.database.reset();
        QCOMPARE(dialog.state(0), QString("Loaded"));
        QVERIFY(dialog.controller.beforeEndModal(okCode));
    }
};

int main(int argc, char** argv)
{
    return runWxTest<LineTypesTest>(argc, argv);
}

#include "tst_linetypes.moc"
