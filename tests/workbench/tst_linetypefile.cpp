#include "linetypes/linetypefile.h"

#include "od/oddbdatabase.h"
#include "support/table.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace workbench;

namespace {
/// As in "A: first, 1 -0.5 0 | B: , 2 -1".
QString text(const LineTypeFile& file)
{
    QStringList lines;
    for (const LineType& lineType : file.lineTypes) {
        QStringList dashes;
        for (const double dash : lineType.dashes)
            dashes += QString::number(dash);
        lines += QStringLiteral("%1: %2, %3").arg(lineType.name, lineType.description, dashes.join(u' '));
    }
    return lines.join(QStringLiteral(" | "));
}
} // namespace

/// Files of linetype definitions.
class LineTypeFileTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsWhatIsDefined_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("input", "expected");
        row("two linetypes and comments", ";; x\n*A,first\n\n;; y\nA,1,-.5,0,-.5\n*B\nA,2,-1",
            "A: first, 1 -0.5 0 -0.5 | B: , 2 -1");
        row("lines that end as on other systems", "*A,x\r\nA,1,-1\r*B,y\r\na,1,-1\r\n", "A: x, 1 -1 | B: y, 1 -1");
        row("blanks everywhere", "  * A b , x, y \n\t a , +1. ,  -1e-1 \n", "A b: x, y, 1 -0.1");
        row("a byte order mark and UTF-8",
            "\xEF\xBB\xBF*Stra\xC3\x9F"
            "e,\xE2\x80\x94\nA,1,-1",
            QStringLiteral(u"Stra\u00DFe: \u2014, 1 -1"));
        row("UTF-16", QByteArray("\xFF\xFE*\0A\0\n\0A\0,\0001\0,\0-\0001\0", 20), "A: , 1 -1");
        row("Latin-1",
            "*Stra\xDF"
            "e\nA,1,-1",
            QStringLiteral(u"Stra\u00DFe: , 1 -1"));
        row("twelve parts", "*A\nA,1,-1,1,-1,1,-1,1,-1,1,-1,1,-1", "A: , 1 -1 1 -1 1 -1 1 -1 1 -1 1 -1");
    }
    void readsWhatIsDefined()
    {
        QFETCH(QByteArray, input);
        QFETCH(QString, expected);
        const LineTypeFile file = parseLineTypes(input);
        QCOMPARE(file.problems, QStringList());
        QCOMPARE(file.error, QString());
        QCOMPARE(text(file), expected);
    }

    void skipsBadLinesAndTellsOfThem_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("bad", "problem");
        row("no name", "*,x\nA,1,-1", "Line 3: the linetype has no name.");
        row("a name that is a pattern of names", "*A*,x\nA,1,-1",
            "Line 3: the name \"A*\" has a character that names can't contain.");
        row("a control character", "*A\x01,x\nA,1,-1",
            "Line 3: the name \"A\x01\" has a character that names can't contain.");
        row("a linetype that every drawing has", "*byLAYER,x\nA,1,-1",
            "Line 3: the linetype \"byLAYER\" can't be defined.");
        row("the same again", "*good,x\nA,1,-1", "Line 3: the linetype \"good\" is defined already.");
        row("no dashes", "*A,x", "Line 3: the linetype \"A\" has no dashes.");
        row("dashes without a name", "A,1,-1", "Line 3: this isn't understood.");
        row("dashes for two", "*A,x\nA,1\nA,1,-1",
            "Line 4: a linetype has 2 to 12 dashes, gaps and dots.\n"
            "Line 5: this isn't understood.");
        row("a shape", "*A,x\nA,1,-1,[BOX,x.shx,S=1],-1", "Line 4: linetypes with shapes or texts aren't supported.");
        row("another alignment", "*A,x\nS,1,-1", "Line 4: dashes begin with \"A,\".");
        row("too many", "*A,x\nA,1,-1,1,-1,1,-1,1,-1,1,-1,1,-1,1",
            "Line 4: a linetype has 2 to 12 dashes, gaps and dots.");
        row("a comma too many", "*A,x\nA,1,-1,", "Line 4: \"\" is no length.");
        row("no number", "*A,x\nA,1,-long", "Line 4: \"-long\" is no length.");
        row("an endless dash", "*A,x\nA,inf,-1", "Line 4: \"inf\" is no length.");
        row("not a number", "*A,x\nA,nan,-1", "Line 4: \"nan\" is no length.");
        row("too long a gap", "*A,x\nA,1,-1e7", "Line 4: \"-1e7\" is no length.");
        row("a gap first", "*A,x\nA,-1,1", "Line 4: a linetype begins with a dash or a dot.");
        row("no gap", "*A,x\nA,1,0", "Line 4: the linetype has no gap.");
    }
    void skipsBadLinesAndTellsOfThem()
    {
        QFETCH(QByteArray, bad);
        QFETCH(QString, problem);
        const LineTypeFile file = parseLineTypes("*GOOD,x\nA,1,-1\n" + bad + "\n*LAST\nA,3,-1");
        QCOMPARE(text(file), QString("GOOD: x, 1 -1 | LAST: , 3 -1"));
        QCOMPARE(file.problems.join(u'\n'), problem);
        QCOMPARE(file.error, QString());
    }

    void tellsWhyThereIsNothing()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.lin");
        const auto write = [&](const QByteArray& content) {
            QFile file(path);
            return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
        };
        QCOMPARE(readLineTypes(path).error, QStringLiteral("The file \"%1\" can't be read.").arg(path));
        QCOMPARE(readLineTypes(folder.path()).error,
                 QStringLiteral("The file \"%1\" can't be read.").arg(folder.path()));
        QVERIFY(write({}));
        QCOMPARE(readLineTypes(path).error, QString("The file defines no linetype."));
        const char nonsense[] = "\x7F\2ELF\1\1\0\0\n\xFF\xFE*\0\n";
        QVERIFY(write(QByteArray(nonsense, sizeof nonsense - 1)));
        QVERIFY(!readLineTypes(path).error.isEmpty());
        QCOMPARE(readLineTypes(path).problems.size(), 2);
        QVERIFY(write(QByteArray(5'000'000, '\n')));
        QVERIFY(readLineTypes(path).error.contains("too large"));
    }

    void theFileThatComesWithTheProgramIsSound()
    {
        const LineTypeFile file = readLineTypes(standardLineTypes());
        QCOMPARE(file.error, QString());
        QCOMPARE(file.problems, QStringList());
        QVERIFY(file.lineTypes.size() >= 30);
    }

    void loadingAgainChangesTheDashesOnly()
    {
        OdDbDatabase database;
        OdDbLinetypeTableRecord* first = loadLineType(database, {"Fence", "posts", {1, -1}});
        QCOMPARE(loadLineType(database, {"FENCE", "rails", {2, -1}}), first);
        QCOMPARE(first->getName(), OdString(L"Fence"));
        QCOMPARE(first->comments(), OdString(L"rails"));
        QVERIFY(first->dashes() == OdArray<double>({2, -1}));
        first->erase();
        OdDbLinetypeTableRecord* second = loadLineType(database, {"Fence", {}, {3, -1}});
        QVERIFY(second != first && database.findLinetype(L"fence") == second);
    }
};

QTEST_APPLESS_MAIN(LineTypeFileTest)

#include "tst_linetypefile.moc"
