#include "velm/filter/filteroperatorsmodel.h"

#include "support/members.h"
#include "support/roletext.h"
#include "support/rowmirror.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"

#include <QMetaEnum>
#include <QTest>
#include <QTranslator>

#include <climits>

using namespace velm;
using velmtest::SignalLog;

namespace {
/// Writes each text of one context in upper case.
class UpperCase : public QTranslator
{
public:
    explicit UpperCase(const char* context) : m_context(context) { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return m_context == QLatin1String(context) ? QString::fromUtf8(text).toUpper() : QString();
    }

private:
    QString m_context;
};

auto category(int mask)
{
    return static_cast<FilterOperatorsModel::CategoryType>(mask);
}
} // namespace

class TestFilterOperatorsModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    /// The first function to run: it is the first use whose language stays.
    void theLanguageOfTheFirstUseStays()
    {
        {
            const UpperCase translator("QObject");
            QCOMPARE(FilterOperatorsModel::getStringRepresentation(FilterOperatorsModel::Is), "IS");
        }
        QCOMPARE(FilterOperatorsModel::getStringRepresentation(FilterOperatorsModel::Is), "IS");
        QCOMPARE(FilterOperatorsModel::getStringRepresentation(FilterOperatorsModel::DoesNotMatch), "DOES NOT MATCH");
        QCOMPARE(FilterOperatorsModel::getStringRepresentation(FilterOperatorsModel::Equal), "=");
        for (const int unknown : {-1, 12, INT_MAX})
            QCOMPARE(
                FilterOperatorsModel::getStringRepresentation(static_cast<FilterOperatorsModel::Operator>(unknown)),
                QString());
    }

    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(FilterOperatorsModel::staticMetaObject),
                 "signal: categoryChanged() slot: getStringRepresentation(velm::FilterOperatorsModel::Operator) "
                 "method: indexOfOperator(velm::FilterOperatorsModel::Operator) getComboIcon(int) getComboToolTip(int) "
                 "property: category=");
        const auto categories = QMetaEnum::fromType<FilterOperatorsModel::CategoryType>();
        QCOMPARE(categories.keyToValue("StringMultiple"), 8);
        QCOMPARE(categories.keyToValue("All"), 15);
        const auto operators = QMetaEnum::fromType<FilterOperatorsModel::Operator>();
        QStringList names;
        for (int key = 0; key < operators.keyCount(); ++key) {
            QCOMPARE(operators.value(key), key);
            names += operators.key(key);
        }
        QCOMPARE(names.join(' '), "Is IsNot Equal NotEqual Contains DoesNotContain Matches DoesNotMatch Greater Less "
                                  "GreaterOrEqual LessOrEqual");
    }

    void eachOperatorHasItsTexts()
    {
        FilterOperatorsModel model;
        model.setCategory(FilterOperatorsModel::All);
        QCOMPARE(velmtest::roleText(model, 3),
                 QString::fromUtf8("0 enum int(3), 1 string QString(≠), 2 category int(2), 3 icon QString(is-not.svg), "
                                   "4 iconString QString(IS NOT), 5 topPadding int(2), 6 bottomPadding int(2), "
                                   "7 iconWidth int(18), 8 iconHeight int(18)"));
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList texts;
            for (int role = 0; role <= 4; ++role)
                texts += model.index(row, 0).data(role).toString();
            rows += texts.join(',');
            QCOMPARE(model.getComboIcon(row), texts[3]);
            QCOMPARE(model.indexOfOperator(static_cast<FilterOperatorsModel::Operator>(row)), row);
        }
        QCOMPARE(rows,
                 QStringList({"0,IS,13,is.svg,IS", "1,IS NOT,13,is-not.svg,IS NOT", "2,=,2,is.svg,IS",
                              QString::fromUtf8("3,≠,2,is-not.svg,IS NOT"), "4,CONTAINS,9,contains.svg,CONTAINS",
                              "5,DOES NOT CONTAIN,9,does-not-contain.svg,DOES NOT CONTAIN",
                              "6,MATCHES,8,matches.svg,MATCHES", "7,DOES NOT MATCH,8,does-not-match.svg,DOES NOT MATCH",
                              "8,>,2,bigger-than.svg,GREATER", "9,<,2,smaller-than.svg,LESS",
                              QString::fromUtf8("10,≥,2,bigger-than-equal.svg,GREATER OR EQUAL"),
                              QString::fromUtf8("11,≤,2,smaller-than-equal.svg,LESS OR EQUAL")}));
    }

    void toolTipsOfTextOperatorsAreSentencesInThePresentLanguage()
    {
        FilterOperatorsModel model;
        model.setCategory(FilterOperatorsModel::All);
        QStringList tips;
        for (int row = 0; row < model.rowCount(); ++row)
            tips += model.getComboToolTip(row);
        QCOMPARE(tips, QStringList({"Value is the specified text.", "Value is not the specified text.", "IS", "IS NOT",
                                    "Value contains the specified text.", "Value does not contain the specified text.",
                                    "Value matches the specified wildcard pattern.",
                                    "Value does not match the specified wildcard pattern.", "GREATER", "LESS",
                                    "GREATER OR EQUAL", "LESS OR EQUAL"}));
        const UpperCase translator("velm::FilterOperatorsModel");
        QCOMPARE(model.getComboToolTip(0), "VALUE IS THE SPECIFIED TEXT.");
    }

    void aCategoryListsItsOperators_data()
    {
        const auto row = velmtest::columns<int, QString>("mask", "operators");
        const QString all = "0 1 2 3 4 5 6 7 8 9 10 11";
        row("a text can't match wildcards", 1, "0 1 4 5");
        row("a number is compared", 2, "2 3 8 9 10 11");
        row("a choice is or is not", 4, "0 1");
        row("several texts can match wildcards", 8, "0 1 4 5 6 7");
        row("all bits list all", 15, all);
        row("no bit lists all, too", 0, all);
        row("two bits list what has both", 5, "0 1");
        row("two kinds of text list what has both", 9, "0 1 4 5");
        row("bits that share nothing list nothing", 3, "");
        row("a bit that nobody has lists nothing", 16, "");
        row("a negative mask lists nothing", -1, "");
    }
    void aCategoryListsItsOperators()
    {
        QFETCH(int, mask);
        QFETCH(QString, operators);
        FilterOperatorsModel model;
        model.setCategory(FilterOperatorsModel::Number);
        model.setCategory(category(mask));
        QCOMPARE(velmtest::rowText(model), operators);
        QStringList listed;
        for (const FilterOperatorsModel::Operator op : FilterOperatorsModel::getOperatorsForCategory(category(mask)))
            listed += QString::number(op);
        QCOMPARE(listed.join(' '), operators);
    }

    void noCategoryHasTwoMeanings()
    {
        FilterOperatorsModel model;
        const velmtest::RowMirror mirror(model);
        SignalLog log(model);
        QCOMPARE(model.getCategory(), FilterOperatorsModel::NoCategory);
        model.setCategory(FilterOperatorsModel::NoCategory);
        QCOMPARE(log.take(), QString());
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.indexOfOperator(FilterOperatorsModel::Is), -1);
        model.setCategory(FilterOperatorsModel::Enum);
        model.setCategory(FilterOperatorsModel::NoCategory);
        QCOMPARE(model.rowCount(), 12);
        QVERIFY(mirror.isRight());
    }

    void aCategoryIsStoredBeforeTheResetAndToldBehindIt()
    {
        FilterOperatorsModel model;
        const velmtest::RowMirror mirror(model);
        SignalLog log(model);
        QStringList seen;
        connect(&model, &QAbstractItemModel::modelAboutToBeReset, &model,
                [&] { seen += QString("%1 with %2 rows").arg(model.getCategory()).arg(model.rowCount()); });
        model.setCategory(FilterOperatorsModel::String);
        model.setCategory(FilterOperatorsModel::Number);
        QCOMPARE(seen, QStringList({"1 with 0 rows", "2 with 4 rows"}));
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset categoryChanged modelAboutToBeReset modelReset "
                             "categoryChanged");
        model.setCategory(FilterOperatorsModel::Number);
        QCOMPARE(log.take(), QString());
        QCOMPARE(model.indexOfOperator(FilterOperatorsModel::Less), 3);
        QCOMPARE(model.indexOfOperator(FilterOperatorsModel::Is), -1);
        QVERIFY(mirror.isRight());
    }

    void rowsAndRolesThatArentThereAreEmpty()
    {
        FilterOperatorsModel model;
        model.setCategory(FilterOperatorsModel::Enum);
        for (const int row : {-1, 2, INT_MAX, INT_MIN}) {
            QCOMPARE(model.getComboIcon(row), QString());
            QCOMPARE(model.getComboToolTip(row), QString());
        }
        QVERIFY(!model.data(QModelIndex(), 0).isValid());
        for (const int role : {-1, 9, 256})
            QVERIFY(!model.index(0, 0).data(role).isValid());
        QCOMPARE(model.rowCount(model.index(0, 0)), 2);
    }
};

QTEST_GUILESS_MAIN(TestFilterOperatorsModel)
#include "tst_filteroperatorsmodel.moc"
