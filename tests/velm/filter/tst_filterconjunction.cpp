#include "velm/filter/filtertagsconjunctionmodel.h"

#include "fakeproperties.h"
#include "namingformatter.h"

#include "support/members.h"
#include "support/rowmirror.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"
#include "velm/filter/examplefilterproperties.h"

#include <QTest>

#include <climits>

using namespace velm;
using velmtest::FakeProperties;
using velmtest::NamingFormatter;
using velmtest::SignalLog;

namespace {
constexpr int badIndexes[] = {-1, -2, INT_MIN, INT_MAX};

enum Row
{
    Text,
    Texts,
    Real,
    Integer,
    Choice,
    Boolean,
    Odd,
    rowCount
};

FakeProperties properties()
{
    return {{"text", "string", {}, {}, {}, {}},         {"texts", "stringMultiple", {}, {}, {"a"}, {}},
            {"real", "real", {}, "mm", {}, {}},         {"integer", "integer", {}, {}, {}, {}},
            {"choice", "enum", {}, {}, {"x", "y"}, {}}, {"boolean", "boolean", {}, {}, {}, {}},
            {"odd", "no such kind", {}, {}, {}, {}}};
}

/// The tag as "property operator type value", or "-" for one that isn't there.
QString text(const FilterTagsConjunctionModel& model, std::size_t row = 0)
{
    if (row >= model.getTags().size())
        return "-";
    const FilterTagData& tag = model.getTags()[row];
    return QString("%1 %2 %3").arg(tag.propertyIndex).arg(tag.operation).arg(velmtest::typed(tag.value));
}
} // namespace

class TestFilterConjunction : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(FilterTagsConjunctionModel::staticMetaObject),
                 "method: addTag(int,int,QVariant) editTag(int,int,int,QVariant) removeTag(int) clear() "
                 "property: propertiesModel!");
        const FakeProperties model = properties();
        const FilterTagsConjunctionModel tags(model, nullptr);
        QCOMPARE(tags.property("propertiesModel").value<const QAbstractListModel*>(), &model);
    }

    void eachRoleReadsItsPart()
    {
        const FakeProperties model = properties();
        const NamingFormatter formatter;
        FilterTagsConjunctionModel tags(model, &formatter, {{Real, FilterOperatorsModel::Less, 2.5}});
        QStringList texts;
        for (int role = -1; role <= 9; ++role)
            texts += role == FilterTagsConjunctionModel::DataRole ? "data" : tags.index(0, 0).data(role).toString();
        QCOMPARE(texts.join('|'), "|tag 2 0|tip 2 0|label 2|name 2|2|9|2|2.5|data|");
        const QVariantMap map = tags.index(0, 0).data(FilterTagsConjunctionModel::DataRole).toMap();
        QCOMPARE(map, (QVariantMap{{"tagString", "tag 2 0"},
                                   {"tagTooltip", "tip 2 0"},
                                   {"propertyLabelTooltip", "label 2"},
                                   {"propertyName", "name 2"},
                                   {"propertyIndex", 2},
                                   {"operation", 9},
                                   {"operatorsCategory", 2},
                                   {"value", 2.5}}));
        QCOMPARE(tags.roleNames().value(8), "data");
        QCOMPARE(tags.roleNames().size(), 9);
        QVERIFY(!tags.data(QModelIndex(), 0).isValid());
        QCOMPARE(tags.rowCount(tags.index(0, 0)), 1);
    }

    void withoutAFormatterATagReadsAsUsual()
    {
        FakeProperties model = properties();
        const FilterTagsConjunctionModel tags(model, nullptr, {{Real, FilterOperatorsModel::Less, 2.5}});
        QCOMPARE(velmtest::rowText(tags), "real < 2.5 mm");
        model.change(Real, {"width", "real", {}, {}, {}, {}}); // nothing is kept of the former text
        QCOMPARE(velmtest::rowText(tags), "width < 2.5");
    }

    void aTagWithoutAPropertyShowsNothing()
    {
        const auto example = ExampleFilterProperties::createExampleFilterProperties();
        const FilterTagsConjunctionModel tags(*example, nullptr, {{-1, 1, "x"}});
        QStringList texts;
        for (int role = 0; role <= 7; ++role)
            texts += tags.index(0, 0).data(role).toString();
        QCOMPARE(texts.join('|'), "||||-1|1|0|x");
        QCOMPARE(tags.index(0, 0).data(FilterTagsConjunctionModel::DataRole).toMap().size(), 8);
        // A model may answer for it all the same.
        class Answering : public FakeProperties
        {
            FilterOperatorsModel::CategoryType getOperatorCategoryType(int) const override
            {
                return FilterOperatorsModel::Enum;
            }
        };
        const Answering answering;
        const FilterTagsConjunctionModel others(answering, nullptr, {{-1, 1, "x"}});
        QCOMPARE(others.index(0, 0).data(FilterTagsConjunctionModel::OperatorsCategoryRole), QVariant(4));
    }

    void aTagIsAddedAsItComes()
    {
        const FakeProperties model = properties();
        FilterTagsConjunctionModel tags(model, nullptr);
        const velmtest::RowMirror mirror(tags);
        SignalLog log(tags);
        QVERIFY(tags.addTag(Real, FilterOperatorsModel::Matches, "no number"));
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 0, 0) rowsInserted(-, 0, 0)");
        QVERIFY(tags.addTag(Text, INT_MIN, QVariant()));
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1)");
        QCOMPARE(text(tags, 0), "2 6 QString no number");
        QCOMPARE(text(tags, 1), "0 -2147483648 nothing");
        for (const int bad : badIndexes)
            QVERIFY(!tags.addTag(bad, 0, 1));
        QVERIFY(!tags.addTag(rowCount, 0, 1));
        QCOMPARE(log.take(), QString());
        QVERIFY(mirror.isRight());
    }

    void anEditFitsOperatorAndValueToTheProperty_data()
    {
        const auto row = velmtest::columns<int, int, QVariant, QString>("property", "operation", "value", "expected");
        row("a number as it is", Real, 9, 1.5, "2 9 double 1.5");
        row("a text becomes a number", Real, 2, "12.5", "2 2 double 12.5");
        row("a text that is no number becomes the default", Real, 2, "twelve", "2 2 double 0");
        row("an int becomes a double", Real, 2, 3, "2 2 double 3");
        row("a list becomes the default number", Real, 2, QVariantList{1}, "2 2 double 0");
        row("a double becomes an int", Integer, 2, 2.6, "3 2 int 3");
        row("a double that no int can hold", Integer, 2, QVariant("1e300"), "3 2 int 0");
        row("a text's operator gives way to a number's first", Real, FilterOperatorsModel::Contains, 1.0,
            "2 2 double 1");
        row("a number's operator gives way to a choice's first", Choice, FilterOperatorsModel::Greater, 1, "4 0 int 1");
        row("one text doesn't match wildcards", Text, FilterOperatorsModel::Matches, "x", "0 0 QString x");
        row("several texts match wildcards", Texts, FilterOperatorsModel::Matches, QStringList{"x"},
            "1 6 QStringList x");
        row("a list of variants becomes one of texts", Texts, 0, QVariantList{"x", 2}, "1 0 QStringList x/2");
        row("a text becomes a list of it", Texts, 0, "x", "1 0 QStringList x");
        row("an unknown operator gives way", Choice, INT_MAX, 1, "4 0 int 1");
        row("a negative operator gives way", Choice, -1, 1, "4 0 int 1");
        row("a choice isn't looked up", Choice, 1, 99, "4 1 int 99");
        row("a number becomes a truth", Boolean, 1, 2, "5 1 bool true");
        row("a property of an unknown kind takes any operator and no value", Odd, 6, "x", "6 6 nothing");
        row("no value leaves the present one, of whatever kind", Choice, 6, QVariant(), "4 0 QString before");
    }
    void anEditFitsOperatorAndValueToTheProperty()
    {
        QFETCH(int, property);
        QFETCH(int, operation);
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        const FakeProperties model = properties();
        FilterTagsConjunctionModel tags(model, nullptr, {{Text, 0, "other"}, {Text, 0, "before"}});
        const velmtest::RowMirror mirror(tags);
        SignalLog log(tags);
        QVERIFY(tags.editTag(1, property, operation, value));
        QCOMPARE(text(tags, 1), expected);
        QCOMPARE(log.take(), "dataChanged(1,0, 1,0, [])");
        QCOMPARE(text(tags, 0), "0 0 QString other");
        QVERIFY(mirror.isRight());
    }

    void anEditThatChangesNothingIsSilentUnlessItBringsNoValue()
    {
        const FakeProperties model = properties();
        FilterTagsConjunctionModel tags(model, nullptr, {{Real, 8, 2.0}});
        SignalLog log(tags);
        QVERIFY(!tags.editTag(0, Real, 8, 2.0));
        QVERIFY(!tags.editTag(0, Real, 8, "2"));
        QCOMPARE(log.take(), QString());
        QVERIFY(tags.editTag(0, Real, 8, QVariant()));
        QCOMPARE(log.take(), "dataChanged(0,0, 0,0, [])");
        QVERIFY(tags.editTag(0, Real, 9, 2.0));
        QVERIFY(tags.editTag(0, Real, 9, 2.5));
        QCOMPARE(log.take(), "dataChanged(0,0, 0,0, []) dataChanged(0,0, 0,0, [])");
        QCOMPARE(text(tags), "2 9 double 2.5");
    }

    void badIndexesDoNothing()
    {
        const FakeProperties model = properties();
        FilterTagsConjunctionModel tags(model, nullptr, {{Real, 8, 2.0}});
        SignalLog log(tags);
        for (const int bad : badIndexes) {
            QVERIFY(!tags.editTag(bad, Real, 8, 3.0));
            QVERIFY(!tags.editTag(0, bad, 8, 3.0));
            QVERIFY(!tags.removeTag(bad));
        }
        QVERIFY(!tags.editTag(1, Real, 8, 3.0));
        QVERIFY(!tags.editTag(0, rowCount, 8, 3.0));
        QVERIFY(!tags.removeTag(1));
        QCOMPARE(log.take(), QString());
        QCOMPARE(text(tags), "2 8 double 2");
    }

    void tagsAreTakenAway()
    {
        const FakeProperties model = properties();
        FilterTagsConjunctionModel tags(model, nullptr, {{Text, 0, "a"}, {Text, 0, "b"}, {Text, 0, "c"}});
        const velmtest::RowMirror mirror(tags);
        SignalLog log(tags);
        QVERIFY(tags.removeTag(1));
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 1, 1) rowsRemoved(-, 1, 1)");
        QCOMPARE(velmtest::rowText(tags, FilterTagsConjunctionModel::ValueRole), "a c");
        QVERIFY(tags.clear());
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        QVERIFY(!tags.clear());
        QVERIFY(!tags.removeTag(0));
        QCOMPARE(log.take(), QString());
        QVERIFY(mirror.isRight());
    }

    void aPropertyThatWentReadsAsTheModelSays()
    {
        FakeProperties model = properties();
        FilterTagsConjunctionModel tags(model, nullptr, {{Choice, 0, 1}});
        model.reset({{"text", "string", {}, {}, {}, {}}});
        QCOMPARE(tags.index(0, 0).data(FilterTagsConjunctionModel::DataRole).toMap().size(), 8);
        QCOMPARE(tags.index(0, 0).data(FilterTagsConjunctionModel::OperatorsCategoryRole), 0);
        QVERIFY(!tags.editTag(0, Choice, 0, 0));
        QVERIFY(tags.editTag(0, 0, 0, 1)); // to one that is there
        QCOMPARE(text(tags), "0 0 QString 1");
    }
};

QTEST_GUILESS_MAIN(TestFilterConjunction)
#include "tst_filterconjunction.moc"
