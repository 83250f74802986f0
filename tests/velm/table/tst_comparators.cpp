#include "velm/table/comparators.h"

#include "velm/bridge/conversions.h"
#include "velm/table/columns.h"
#include "velm/table/sortfilterselectmodel.h"
#include "velm/table/sortkeys.h"

#include "support/scopes.h"
#include "support/table.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QTest>

#include <functional>
#include <limits>
#include <map>
#include <numeric>

using namespace velm;

namespace {
using Less = std::function<bool(wxString, wxString)>;

const std::map<QString, Less>& comparators()
{
    static const std::map<QString, Less> all = {
        {"strings", stringsLessThan},
        {"integers", integersLessThan},
        {"doubles", doublesLessThan},
        {"file sizes", [](wxString left, wxString right) { return fileSizeLessThan(left, right); }},
        {"plot styles",
         [](const wxString& left, const wxString& right) { return plotStylesLessThan(left, right, false); }},
        {"colours", [](const wxString& left, const wxString& right) { return plotStylesLessThan(left, right, true); }},
        {"disabled", toggleDisabledLessThan},
        {"pixel sizes", pixelSizeLessThan},
        {"dimension styles", dimStylesLessThan}};
    return all;
}

/// One column of cells, each with a value and a decoration, and the order that a table gives them.
class Cells : public QAbstractListModel
{
public:
    std::vector<QVariant> values;
    std::vector<QVariant> decorations;
    int sortType = SortByValueType;

    int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(values.size()); }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const auto row = static_cast<std::size_t>(index.row());
        return role == Qt::DisplayRole ? values[row] : role == Qt::DecorationRole ? decorations[row] : QVariant();
    }
    QVariant headerData(int, Qt::Orientation, int role) const override
    {
        return role == ColumnSortTypeRole ? QVariant(sortType) : QVariant();
    }
};

/// Compares cells one pair at a time, as a table does outside a sort.
class Table : public SortFilterSelectModel
{
public:
    explicit Table(Cells& cells)
    {
        setSourceModel(&cells);
        doSort(0, true, true); // takes over the sort type
    }
    using SortFilterSelectModel::lessThan;
    bool baseLessThan(const QModelIndex& left, const QModelIndex& right) const
    {
        return QSortFilterProxyModel::lessThan(left, right);
    }
};

QString randomText(QRandomGenerator& random)
{
    static const QStringList pieces = {"0",        "1",      "007",  "7",   "99999999999999999999999",
                                       "a",        "A",      "b",    "é",   "É",
                                       "ß",        "İ",      " ",    ".",   ",",
                                       "-",        "Kb",     " Kb",  " Mb", "Mb",
                                       "Disabled", "Color ", "~",    "1.5", "640,480",
                                       "nan",      "inf",    "1e400"};
    QString text;
    for (int left = random.bounded(4); left > 0; --left) {
        const int kind = random.bounded(20);
        if (kind == 0)
            text += QChar(0);
        else if (kind == 1)
            text += QString::fromUcs4(U"\U00010400", 1); // an upper case letter beyond 16 bits
        else if (kind == 2)
            text += QString::fromUcs4(U"\U00010428", 1); // and its lower case
        else if (kind == 3)
            text += QChar(0xD800 + random.bounded(0x800)); // half a pair
        else if (kind == 4)
            text += QChar(random.bounded(0x10000));
        else
            text += pieces[random.bounded(static_cast<int>(pieces.size()))];
    }
    return text;
}

QVariant randomValue(QRandomGenerator& random)
{
    const int number = random.bounded(-3, 12);
    const QVariantList choice = {QVariant(),
                                 number,
                                 static_cast<uint>(number),
                                 number * 5'000'000'000LL,
                                 static_cast<qulonglong>(number),
                                 number / 4.0,
                                 std::numeric_limits<double>::quiet_NaN(),
                                 static_cast<float>(number) / 3,
                                 QChar(u'd' + number),
                                 QDate(2024, 2, number), // not all of them are days
                                 QTime(1, 10 + number),
                                 QDateTime(QDate(2024, 2, 5 + number), QTime(1, 1), Qt::UTC),
                                 number > 5,
                                 QVariantList{number}, // has no text
                                 randomText(random),
                                 randomText(random)};
    return choice[random.bounded(static_cast<int>(choice.size()))];
}
} // namespace

class TestComparators : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pairs_data()
    {
        // The order is < when left is less, > when right is, = when neither is.
        const auto row = velmtest::columns<QString, QString, QString, QString>("comparator", "left", "right", "order");
        row("digits count by value", "strings", "Layer 9", "Layer 10", "<");
        row("so do runs beyond any integer", "strings", "9" + QString(30, '0'), "1" + QString(31, '0'), "<");
        row("an empty text comes first", "strings", "", "a", "<");

        row("integers compare by value", "integers", "9", "10", "<");
        row("what follows the digits doesn't count", "integers", "7 mm", "7 in", "=");
        row("a text without digits is 0", "integers", "none", "1", "<");
        row("an empty integer is equal to all", "integers", "", "5", "=");

        row("doubles compare by value", "doubles", "1.5", "1.25", ">");
        row("a text that goes on is no number, both are texts", "doubles", "10 mm", "9", ">");
        row("an empty double is equal to all", "doubles", "", "-5", "=");

        row("kilobytes are more than bytes", "file sizes", "1 Kb", "1000", ">");
        row("but not more than 1025", "file sizes", "1 Kb", "1025", "<");
        row("equal sizes in two units", "file sizes", "1 Mb", "1024 Kb", "=");
        row("one character before the unit is cut, whatever it is", "file sizes", "12Kb", "1500", "<");
        row("an empty size is a natural first", "file sizes", "", "5 Kb", "<");
        row("0 compares as a text without the unit", "file sizes", "0 Kb", "0 Mb", "=");
        row("0 against a number as texts", "file sizes", "0", "-5", ">");
        row("nothing but a unit", "file sizes", "Kb", "5 Kb", "<");
        row("an unknown unit is unreadable", "file sizes", "5 GB", "900 Kb", "<");
        row("names are natural", "plot styles", "Style 2", "Style 10", "<");

        row("no name is equal to all", "plot styles", "", "Style 10", "=");
        row("colours by the number after the word", "colours", "Color 2", "Color 10", "<");
        row("the word is cut by its length, unread", "colours", "xxxxx 2", "Color 10", "<");
        row("no colour is equal to all", "colours", "", "Color 1", "=");

        row("disabled ones come first", "disabled", "Layer1Disabled", "Layer2", "<");
        row("and are equal among themselves", "disabled", "bDisabled", "aDisabled", "=");
        row("its case counts", "disabled", "zdisabled", "a", ">");
        row("the others without regard to case", "disabled", "a", "B", "<");
        row("digits aren't numbers there", "disabled", "a10", "a9", "<");
        row("equal but for the case", "disabled", "a", "A", "=");
        row("nothing is equal to all", "disabled", "", "aDisabled", "=");

        row("pixel sizes by their area", "pixel sizes", "640,480", "800,600", "<");
        row("without a comma natural", "pixel sizes", "abc", "800,600", ">");
        row("a negative area is natural", "pixel sizes", "-1,5", "0,0", "<");
        row("two negative factors make an area", "pixel sizes", "-10,-10", "9,9", ">");
        row("an area that overflows is negative", "pixel sizes", "50000,50000", "60000,1", "<");
        row("only the first comma counts", "pixel sizes", "2,3,100", "7,1", "<");
        row("no size is equal to all", "pixel sizes", "", "1,1", "=");

        row("dimension styles without regard to case", "dimension styles", "alpha", "BETA", "<");
        row("no style is equal to all", "dimension styles", "", "ISO", "=");
        row("equal but for the case", "dimension styles", "iso", "ISO", "=");
    }
    void pairs()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QFETCH(QString, comparator);
        const Less& less = comparators().at(comparator);
        const auto order = [&](const QString& a, const QString& b) {
            const bool forwards = less(wxFromQt(a), wxFromQt(b));
            const bool backwards = less(wxFromQt(b), wxFromQt(a));
            return forwards && backwards ? "both" : forwards ? "<" : backwards ? ">" : "=";
        };
        QTEST(QString(order(left, right)), "order");
        QVERIFY(!less(wxFromQt(left), wxFromQt(left)));
    }

    void fileSizesAreCutInPlace()
    {
        const auto behind = [](wxString left, wxString right) {
            fileSizeLessThan(left, right);
            return toQt(left + '|' + right);
        };
        QCOMPARE(behind("12 Kb", "3 Mb"), "12|3");
        QCOMPARE(behind("big Kb", "7"), "big|7");
        QCOMPARE(behind("12 Kb", ""), "12 Kb|");
    }

    /// Among texts that aren't empty; doubles, file sizes and pixel sizes mix numbers and texts and promise less.
    void ordersAreStrictAndTransitive()
    {
        QRandomGenerator random(4);
        std::vector<wxString> texts;
        while (texts.size() < 60)
            if (const QString text = randomText(random); !text.isEmpty())
                texts.push_back(wxFromQt(text));
        for (const auto& [name, less] : comparators()) {
            const bool isMixed = name == "doubles" || name.endsWith("sizes");
            std::vector<std::vector<bool>> isLess(texts.size(), std::vector<bool>(texts.size()));
            for (std::size_t a = 0; a < texts.size(); ++a)
                for (std::size_t b = 0; b < texts.size(); ++b)
                    isLess[a][b] = less(texts[a], texts[b]);
            for (std::size_t a = 0; a < texts.size(); ++a) {
                for (std::size_t b = 0; b < texts.size(); ++b) {
                    QVERIFY2(!isLess[a][b] || !isLess[b][a], qPrintable(name));
                    for (std::size_t c = 0; c < texts.size() && !isMixed; ++c)
                        // Being equal is transitive too, or a sort would depend on where it begins.
                        if ((isLess[a][b] && isLess[b][c] && !isLess[a][c]) ||
                            (!isLess[a][b] && !isLess[b][a] && isLess[a][c] != isLess[b][c]))
                            QFAIL(qPrintable(name));
                }
            }
        }
    }

    void byValueType_data()
    {
        const auto row = velmtest::columns<QVariant, QVariant, bool, bool>("left", "right", "forwards", "backwards");
        row("no value is last", QVariant(), QVariant(-1), false, true);
        row("the left type converts the right value", QVariant(2), QVariant("10"), true, false);
        row("a text beside a number is natural, unless the number is left", QVariant("b"), QVariant(-7), false, true);
        row("an unsigned one makes the other unsigned", QVariant(5u), QVariant(-1), true, true);
        row("long ones keep all digits", QVariant(9007199254740993LL), QVariant(9007199254740992LL), false, true);
        row("texts are natural", QVariant("a10"), QVariant("a9"), false, true);
        row("characters by their number", QVariant(QChar(u'B')), QVariant(QChar(u'a')), true, false);
        row("dates", QVariant(QDate(2024, 2, 29)), QVariant(QDate(2024, 3, 1)), true, false);
        row("times", QVariant(QTime(9, 0)), QVariant(QTime(10, 0)), true, false);
        row("moments in two zones", QVariant(QDateTime(QDate(2024, 1, 1), QTime(12, 0), Qt::UTC)),
            QVariant(QDateTime(QDate(2024, 1, 1), QTime(13, 0), Qt::OffsetFromUTC, 7200)), false, true);
        row("what has no order of its own is a text", QVariant(false), QVariant(true), true, false);
        row("a type without a text is empty", QVariant(QVariantList{1}), QVariant("a"), true, false);
    }
    void byValueType()
    {
        QFETCH(QVariant, left);
        QFETCH(QVariant, right);
        Cells cells;
        cells.values = {left, right};
        cells.decorations.resize(2);
        const Table table(cells);
        QTEST(table.lessThan(cells.index(0), cells.index(1)), "forwards");
        QTEST(table.lessThan(cells.index(1), cells.index(0)), "backwards");
        QVERIFY(!table.lessThan({}, cells.index(0)));
    }

    /// A sort doesn't compare cells but keys that were made of them: each pair stands to each other as before.
    void keysHaveTheOrderOfTheCells_data()
    {
        velmtest::columns<int, bool>("sortType", "mixed");
        for (int type = -1; type <= 14; ++type) {
            QTest::addRow("texts by type %d", type) << type << false;
            QTest::addRow("values by type %d", type) << type << true;
        }
    }
    void keysHaveTheOrderOfTheCells()
    {
        QFETCH(int, sortType);
        QFETCH(bool, mixed);
        for (const bool colors : {false, true}) {
            ExternalFunctions functions;
            functions.plotStyleColorDependent = [=] { return colors; };
            const velmtest::ScopedExternalFunctions scope(functions);
            for (quint32 seed = 1; seed <= 3; ++seed) {
                QRandomGenerator random(seed);
                Cells cells;
                cells.sortType = sortType;
                while (cells.values.size() < 50) {
                    cells.values.push_back(mixed ? randomValue(random) : QVariant(randomText(random)));
                    cells.decorations.push_back(randomText(random));
                }
                compareKeys(cells);
            }
            if (sortType != SortPlotStyle)
                break;
        }
    }

    void keysOfOneKindOfValueHaveTheirOrder()
    {
        for (quint32 seed = 1; seed <= 60; ++seed) {
            QRandomGenerator random(seed);
            Cells cells;
            const QVariant first = randomValue(random);
            while (cells.values.size() < 12) {
                const QVariant value = randomValue(random);
                if (!value.isValid() || value.metaType() == first.metaType())
                    cells.values.push_back(value);
            }
            cells.decorations.resize(cells.values.size());
            compareKeys(cells);
        }
    }

    void keysOfHugeTextsHaveTheirOrder()
    {
        const QString mega(1'000'000, u'x');
        const QString digits(1'000'000, u'9');
        for (const int type : {SortAlphanumeric, SortCaseInsensitive, SortDouble}) {
            Cells cells;
            cells.sortType = type;
            cells.values = {mega + "2", mega + "10", digits, "1" + digits, "0" + digits, "x", ""};
            cells.decorations.resize(cells.values.size());
            compareKeys(cells);
        }
    }

private:
    static void compareKeys(Cells& cells)
    {
        const Table table(cells);
        std::vector<int> rows(cells.values.size());
        std::iota(rows.begin(), rows.end(), 0);
        const auto keys =
            makeSortKeys({&cells, {}, 0, Qt::DisplayRole, rows}, cells.sortType,
                         [&](const auto& left, const auto& right) { return table.baseLessThan(left, right); });
        for (const int left : rows) {
            for (const int right : rows) {
                const bool expected = table.lessThan(cells.index(left), cells.index(right));
                if (keys->lessThan(left, right) != expected) {
                    const auto text = [&](int row) {
                        const QVariant& value = cells.values[static_cast<std::size_t>(row)];
                        return QString("%1 '%2'").arg(value.typeName(), value.toString().left(40));
                    };
                    QFAIL(qPrintable(text(left) + " and " + text(right) + QString(" by %1").arg(cells.sortType)));
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestComparators)
#include "tst_comparators.moc"
