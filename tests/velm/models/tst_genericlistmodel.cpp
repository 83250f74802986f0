#include "velm/models/genericlistmodel/genericlistmodel.h"

#include "support/changescript.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;
using velmtest::rowText;
using velmtest::SignalLog;

namespace {
using Texts = std::vector<QString>;

class TextList : public GenericListModel<QString>
{
public:
    using GenericListModel::data;
    using GenericListModel::GenericListModel;
    QVariant data(const QModelIndex& index, int role) const override
    {
        const QString* text = role == Qt::DisplayRole ? getItem(index) : nullptr;
        return text ? QVariant(*text) : QVariant();
    }
};

Texts texts(const QString& letters)
{
    Texts result;
    for (const QChar letter : letters)
        result.push_back(letter);
    return result;
}

using Change = std::function<void(TextList&)>;

/// A model beside a plain vector that has gone through the same changes.
struct Twin
{
    struct Watched
    {
        QPersistentModelIndex index;
        QString text;
    };

    TextList model;
    Texts plain;
    std::vector<Watched> watched;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};

    int size() const { return static_cast<int>(plain.size()); }
    /// Whether the rows agree and the indexes watched before the last change stand at their rows, if there still are
    /// any; then all rows are watched.
    bool check()
    {
        if (model.getItems() != plain || model.rowCount() != size())
            return false;
        for (const Watched& row : watched) {
            const auto place = std::find(plain.begin(), plain.end(), row.text);
            const bool stands = row.index.isValid() && row.index.row() == place - plain.begin();
            if (place == plain.end() ? row.index.isValid() : !stands)
                return false;
        }
        watched.clear();
        for (int row = 0; row < size(); ++row)
            watched.push_back({model.index(row), plain[static_cast<std::size_t>(row)]});
        return true;
    }
};

/// Takes rows out one by one.
Texts taken(Texts& rows, int first, int count)
{
    Texts result;
    for (; count > 0; --count) {
        result.push_back(rows[static_cast<std::size_t>(first)]);
        rows.erase(rows.begin() + first);
    }
    return result;
}
} // namespace

class TestGenericListModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aChangeIsOnePairOfSignalsOrNone_data()
    {
        const auto row = velmtest::columns<QString, QString, Change>("after", "log", "change");
        const auto rows = [row](const QString& kind) {
            return [=](const char* name, const QString& after, const QString& range, const Change& edit) {
                row(name, after, QString("rowsAboutToBe%1(%2) rows%1(%2)").arg(kind, range), edit);
            };
        };
        const auto inserts = rows("Inserted");
        const auto removes = rows("Removed");
        const auto moves = rows("Moved");
        const auto nothing = [row](const char* name, const Change& none) { row(name, "a b c d e", {}, none); };
        const QString reset = "modelAboutToBeReset modelReset";

        row("clearing, an empty list, too", "", reset + ' ' + reset, [](auto& m) { m.clear(), m.clear(); });
        row("a reset takes over other rows", "x y", reset, [](auto& m) { m.reset(texts("xy")); });
        row("a reset with its own rows keeps them", "a b c d e", reset,
            [](auto& m) { m.reset(std::move(const_cast<Texts&>(m.getItems()))); });

        row("an update", "a b c d x", "dataChanged(4,0, 4,0, [])", [](auto& m) { m.update(4, "x"); });
        nothing("an update behind the last row", [](auto& m) { m.update(5, "x"); });
        nothing("an update before the first row", [](auto& m) { m.update(-1, "x"); });

        inserts("a row at the end", "a b c d e x", "-, 5, 5", [](auto& m) { QCOMPARE(m.append("x"), 5); });
        inserts("a range at the end", "a b c d e x y", "-, 5, 6", [](auto& m) { m.append(texts("xy")); });
        nothing("an empty range at the end", [](auto& m) { m.append(Texts()); });
        inserts("a row in front", "x a b c d e", "-, 0, 0", [](auto& m) { m.insert(0, QString("x")); });
        inserts("a row behind the last", "a b c d e x", "-, 5, 5", [](auto& m) { m.insert(5, QString("x")); });
        nothing("a row further behind", [](auto& m) { m.insert(6, QString("x")); });
        nothing("a row at a negative place", [](auto& m) { m.insert(-1, QString("x")); });
        inserts("a range within", "a b x y c d e", "-, 2, 3", [](auto& m) { m.insert(2, texts("xy")); });
        nothing("an empty range, wherever it goes", [](auto& m) { m.insert(99, Texts()); });

        removes("erasing within", "a d e", "-, 1, 2", [](auto& m) { m.erase(1, 2); });
        removes("erasing past the end stops there", "a b", "-, 2, 4", [](auto& m) { m.erase(2, INT_MAX); });
        nothing("erasing behind the last row", [](auto& m) { m.erase(5, 1); });
        nothing("erasing before the first row", [](auto& m) { m.erase(-1, 2); });
        nothing("erasing no row", [](auto& m) { m.erase(0, 0); });

        moves("moving down", "a d b c e", "-, 1, 2, -, 4", [](auto& m) { QVERIFY(m.move(1, 2, 4)); });
        moves("moving behind the last row", "c d e a b", "-, 0, 1, -, 5", [](auto& m) { QVERIFY(m.move(0, 1, 5)); });
        moves("moving to the front", "e a b c d", "-, 4, 4, -, 0", [](auto& m) { QVERIFY(m.move(4, 4, 0)); });
        nothing("moving to its own place", [](auto& m) { QVERIFY(!m.move(1, 2, 1)); });
        nothing("moving into itself", [](auto& m) { QVERIFY(!m.move(1, 2, 2)); });
        nothing("moving right behind itself", [](auto& m) { QVERIFY(!m.move(1, 2, 3)); });
        nothing("moving a range that is upside down", [](auto& m) { QVERIFY(!m.move(3, 2, 0)); });
        nothing("moving rows before the first", [](auto& m) { QVERIFY(!m.move(-1, 1, 4)); });
        nothing("moving rows behind the last", [](auto& m) { QVERIFY(!m.move(4, 5, 0)); });
        nothing("moving to a negative place", [](auto& m) { QVERIFY(!m.move(1, 2, -1)); });
        nothing("moving further behind the last row", [](auto& m) { QVERIFY(!m.move(1, 2, 6)); });
    }
    void aChangeIsOnePairOfSignalsOrNone()
    {
        QFETCH(Change, change);
        TextList model(texts("abcde"));
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        SignalLog log(model);
        change(model);
        QTEST(rowText(model), "after");
        QTEST(log.take(), "log");
    }

    void anUpdateNamesItsRoles()
    {
        TextList model(texts("ab"));
        SignalLog log(model);
        const QString text = "x";
        model.update(0, text, {7, 300});
        model.update(1, "y");
        QCOMPARE(rowText(model), QString("x y"));
        QCOMPARE(log.take(), QString("dataChanged(0,0, 0,0, [7 300]) dataChanged(1,0, 1,0, [])"));
    }

    // The rows are still there while their removal is announced, and gone before the other model hears of them.
    void aMoveToAnotherModelIsTwoChanges()
    {
        TextList from(texts("abcde"));
        TextList to(texts("xy"));
        const QAbstractItemModelTester fromTester(&from, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QAbstractItemModelTester toTester(&to, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList log;
        const auto note = [&](const char* what) {
            return [&, what](const QModelIndex&, int first, int last) {
                log += QString("%1 %2-%3: %4 | %5").arg(what).arg(first).arg(last).arg(rowText(from), rowText(to));
            };
        };
        connect(&from, &TextList::rowsAboutToBeRemoved, this, note("removing"));
        connect(&from, &TextList::rowsRemoved, this, note("removed"));
        connect(&to, &TextList::rowsAboutToBeInserted, this, note("inserting"));
        connect(&to, &TextList::rowsInserted, this, note("inserted"));
        from.move(1, 3, to, 1);
        QCOMPARE(log, QStringList({"removing 1-3: a b c d e | x y", "removed 1-3: a e | x y",
                                   "inserting 1-3: a e | x y", "inserted 1-3: a e | x b c d y"}));
    }

    void aMoveToAnotherModelThatDoesNotFit_data()
    {
        const auto row = velmtest::columns<int, int, int, QString>("first", "last", "dest", "log");
        row("a first row behind the last one", 3, 3, 0, QString());
        row("a last row behind the last one", 0, 3, 0, QString());
        row("a negative first row", -1, 1, 0, QString());
        row("a negative last row", 0, -1, 0, QString());
        row("a place behind the other model's end", 0, 1, 2, QString());
        row("an empty range is announced, yet nothing goes over", 2, 1, 0,
            "rowsAboutToBeRemoved(-, 2, 1) rowsRemoved(-, 2, 1)");
    }
    void aMoveToAnotherModelThatDoesNotFit()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(int, dest);
        TextList from(texts("abc"));
        TextList to(texts("x"));
        SignalLog fromLog(from);
        SignalLog toLog(to);
        from.move(first, last, to, dest);
        QTEST(fromLog.take(), "log");
        QCOMPARE(toLog.take(), QString());
        QCOMPARE(rowText(from) + " | " + rowText(to), QString("a b c | x"));
    }

    // No list can take such rows, so the announcement is as far as this can go.
    void rangesAreAnnouncedAtAnyRow()
    {
        struct Announced
        {
            int first;
            int last;
        };
        const auto giveUp = [](const QModelIndex&, int first, int last) { throw Announced{first, last}; };
        const auto announced = [&](TextList& model, const std::function<void()>& change) {
            connect(&model, &TextList::rowsAboutToBeInserted, &model, giveUp);
            try {
                change();
            } catch (const Announced& range) {
                return QString("%1 to %2").arg(range.first).arg(range.last);
            }
            return QString("nothing");
        };
        TextList below(texts("a"));
        QCOMPARE(announced(below, [&] { below.insert(99, texts("xy")); }), QString("99 to 100"));
        TextList above(texts("a"));
        QCOMPARE(announced(above, [&] { above.insert(-1, texts("x")); }), QString("-1 to -1"));
        TextList from(texts("abc"));
        TextList to;
        QCOMPARE(announced(to, [&] { from.move(0, 1, to, -3); }), QString("-3 to -2"));
        QCOMPARE(rowText(from), QString("c"));
    }

    void readsOfRowsThatAreNotThereGiveNull()
    {
        TextList model(texts("abc"));
        QCOMPARE(*model.getItem(2), QString("c"));
        QCOMPARE(*std::as_const(model).getItem(model.index(1)), QString("b"));
        QCOMPARE(*model.last(), QString("c"));
        QCOMPARE(model.data(1, Qt::DisplayRole), QVariant("b"));
        QVERIFY(!model.getItem(-1));
        QVERIFY(!model.getItem(3));
        QVERIFY(!std::as_const(model).getItem(3));
        QVERIFY(!model.getItem(QModelIndex()));
        QVERIFY(!model.data(3, Qt::DisplayRole).isValid());
        QCOMPARE(model.rowCount(model.index(0)), 0);
        const QModelIndex former = model.index(2);
        model.erase(2, 1);
        QVERIFY(!model.getItem(former));
        model.clear();
        QVERIFY(!model.last());
    }

    void findingTellsTheFirstRow()
    {
        TextList model(texts("abcb"));
        QCOMPARE(model.find("b"), std::optional<int>(1));
        QCOMPARE(model.find("x"), std::optional<int>());
        QCOMPARE(model.find_if([](const QString& text) { return text > "b"; }), std::optional<int>(2));
        QCOMPARE(model.find_if([](const QString& text) { return text > "c"; }), std::optional<int>());
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call, model.find_if({}));
        model.clear();
        QCOMPARE(model.find_if({}), std::optional<int>());
    }

    void itemsCanBeChangedInPlace()
    {
        TextList model(texts("abc"));
        model[0] = "x";
        *model.getItem(1) = "y";
        *(model.end() - 1) = "z";
        QCOMPARE(rowText(model), QString("x y z"));
    }

    void randomChangesKeepPaceWithAPlainVector_data()
    {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1U, 2U, 3U})
            QTest::addRow("seed %u", seed) << seed;
    }
    void randomChangesKeepPaceWithAPlainVector()
    {
        QFETCH(quint32, seed);
        Twin twins[2];
        int number = 0;
        const auto fresh = [&](int count) {
            Texts result;
            for (; count > 0; --count)
                result.push_back(QString::number(++number));
            return result;
        };
        // A row that fits more often than not.
        const auto place = [](QRandomGenerator& random, const Twin& twin) {
            return random.bounded(-1, twin.size() + 2);
        };
        velmtest::ChangeScript script(seed);
        const auto add = [&](const char* name, const std::function<void(QRandomGenerator&, Twin&, Twin&)>& edit) {
            script.add(name, [&twins, edit](QRandomGenerator& random) {
                const bool second = random.bounded(2) == 1;
                edit(random, twins[second ? 1 : 0], twins[second ? 0 : 1]);
            });
        };

        add("append", [&](QRandomGenerator&, Twin& twin, Twin&) {
            const Texts row = fresh(1);
            twin.plain.push_back(row[0]);
            QCOMPARE(twin.model.append(QString(row[0])), twin.size() - 1);
        });
        add("append a range", [&](QRandomGenerator& random, Twin& twin, Twin&) {
            Texts rows = fresh(random.bounded(4));
            twin.plain.insert(twin.plain.end(), rows.begin(), rows.end());
            twin.model.append(std::move(rows));
        });
        add("insert", [&](QRandomGenerator& random, Twin& twin, Twin&) {
            Texts row = fresh(1);
            const int at = place(random, twin);
            if (at >= 0 && at <= twin.size())
                twin.plain.insert(twin.plain.begin() + at, row[0]);
            twin.model.insert(at, std::move(row[0]));
        });
        add("insert a range", [&](QRandomGenerator& random, Twin& twin, Twin&) {
            Texts rows = fresh(random.bounded(4));
            const int at = random.bounded(twin.size() + 1);
            twin.plain.insert(twin.plain.begin() + at, rows.begin(), rows.end());
            twin.model.insert(at, std::move(rows));
        });
        add("erase", [&](QRandomGenerator& random, Twin& twin, Twin&) {
            const int first = place(random, twin);
            const int count = random.bounded(-1, 6);
            if (first >= 0)
                taken(twin.plain, first, std::min(count, twin.size() - first));
            twin.model.erase(first, count);
        });
        add("update", [&](QRandomGenerator& random, Twin& twin, Twin&) {
            const int row = place(random, twin);
            Texts value = fresh(1);
            if (row >= 0 && row < twin.size())
                twin.watched[static_cast<std::size_t>(row)].text = twin.plain[static_cast<std::size_t>(row)] = value[0];
            twin.model.update(row, std::move(value[0]));
        });
        add("move", [&](QRandomGenerator& random, Twin& twin, Twin&) {
            const int first = place(random, twin);
            const int last = first + random.bounded(-1, 4);
            const int dest = place(random, twin);
            const bool fits = first >= 0 && last >= first && last < twin.size() && dest >= 0 && dest <= twin.size();
            const bool moves = fits && (dest < first || dest > last + 1);
            if (moves) {
                const Texts rows = taken(twin.plain, first, last - first + 1);
                const int to = dest > last ? dest - static_cast<int>(rows.size()) : dest;
                twin.plain.insert(twin.plain.begin() + to, rows.begin(), rows.end());
            }
            QCOMPARE(twin.model.move(first, last, dest), moves);
        });
        add("move to the other", [&](QRandomGenerator& random, Twin& twin, Twin& other) {
            const int first = place(random, twin);
            const int last = first + random.bounded(4);
            const int dest = random.bounded(other.size() + 3);
            if (first >= 0 && last < twin.size() && dest <= other.size()) {
                const Texts rows = taken(twin.plain, first, last - first + 1);
                other.plain.insert(other.plain.begin() + dest, rows.begin(), rows.end());
            }
            twin.model.move(first, last, other.model, dest);
        });
        add("reset", [&](QRandomGenerator& random, Twin& twin, Twin&) {
            twin.plain = fresh(random.bounded(12));
            twin.model.reset(Texts(twin.plain));
        });

        QVERIFY(script.run(600, [&] { return twins[0].check() && twins[1].check(); }));
    }
};

QTEST_GUILESS_MAIN(TestGenericListModel)
#include "tst_genericlistmodel.moc"
