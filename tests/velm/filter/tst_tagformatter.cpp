#include "velm/filter/defaulttagformatter.h"

#include "fakeproperties.h"
#include "filterhost.h"

#include "support/table.h"
#include "support/vtableslots.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/filter/examplefilterproperties.h"
#include "velm/filter/filtertagdata.h"

#include <QTest>

using namespace velm;
using velmtest::FakeProperties;

namespace {
const FakeProperties& properties()
{
    static const FakeProperties result = {
        {"layer", "stringMultiple", {"General"}, {}, {}, {}},
        {"length", "real", {"Geometry", "Size"}, "mm", {}, {}},
        {"kinds", "enumMultiple", {}, "pcs", {"Wall", "", "Door"}, {}},
        {"visible", "boolean", {}, {}, {}, {}},
        {"odd", "no such kind", {}, "u", {}, {}},
        {"kind", "enum", {}, {}, {"Wall", "Door"}, {}},
        {"text", "string", {}, {}, {}, {}},
    };
    return result;
}

/// "chip | tooltip", line feeds as slashes.
QString text(const FilterTagData& tag)
{
    const DefaultTagFormatter formatter;
    const FilterOperatorsModel unused;
    const QString both =
        formatter.formatTag(tag, properties(), unused) + " | " + formatter.formatTagToolTip(tag, properties(), unused);
    return QString(both).replace('\n', '\\');
}
} // namespace

Q_DECLARE_METATYPE(velm::FilterTagData)

class TestTagFormatter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTagReads_data()
    {
        const auto row = velmtest::columns<FilterTagData, QString>("tag", "expected");
        row("one of several texts stands itself", {0, 4, QStringList{"A"}},
            "layer contains A | General/layer contains A");
        row("several texts are one word, and lines in the tooltip", {0, 0, QStringList{"A", "", "B"}},
            "layer is *Multiple* | General/layer is \\A\\\\B");
        row("no text at all ends in a blank", {0, 0, QStringList()}, "layer is  | General/layer is ");
        row("texts in a list of variants", {0, 6, QVariantList{"A", 2}},
            "layer matches *Multiple* | General/layer matches \\A\\2");
        row("the unit comes last", {1, 8, 12.5}, "length > 12.5 mm | Geometry/Size/length > 12.5 mm");
        row("a number without a value keeps its unit", {1, 8, QVariant()}, "length >  mm | Geometry/Size/length >  mm");
        row("the unit also follows several lines", {2, 0, QVariantList{2, 0}},
            "kinds is *Multiple* pcs | kinds is \\Door\\Wall pcs");
        row("choices that aren't there are dropped", {2, 1, QVariantList{3, 2, 99}},
            "kinds is not Door pcs | kinds is not Door pcs");
        row("no choice that is there leaves none", {2, 1, QVariantList{3, -1}},
            "kinds is not  pcs | kinds is not  pcs");
        row("an empty choice is dropped", {2, 0, QVariantList{1}}, "kinds is  pcs | kinds is  pcs");
        row("choices that are no list are none", {2, 0, 2}, "kinds is  pcs | kinds is  pcs");
        row("a choice", {5, 0, 1}, "kind is Door | kind is Door");
        row("a choice from a text", {5, 0, "1"}, "kind is Door | kind is Door");
        row("a choice that isn't there", {5, 0, 2}, "kind is  | kind is ");
        row("a choice that is a list", {5, 0, QVariantList{1}}, "kind is  | kind is ");
        row("true", {3, 0, true}, "visible is true | visible is true");
        row("a truth that is nothing", {3, 0, QVariant()}, "visible is false | visible is false");
        row("an unknown operator leaves two blanks", {6, 12, "x"}, "text  x | text  x");
        row("a negative operator leaves two blanks", {6, -1, "x"}, "text  x | text  x");
        row("a text with a line feed begins a line", {6, 0, "a\nb"}, "text is a\\b | text is \\a\\b");
        row("an unknown kind has no value", {4, 2, "x"}, "odd =  u | odd =  u");
        row("no property reads as nothing", {-1, 0, "x"}, " | ");
        row("a property far below reads as nothing", {INT_MIN, 0, "x"}, " | ");
        row("a property beyond the last is the model's matter", {99, 0, "x"}, " is  |  is ");
    }
    void aTagReads()
    {
        QFETCH(FilterTagData, tag);
        QFETCH(QString, expected);
        QCOMPARE(text(tag), expected);
    }

    void itsPropertyReadsShortOrInFull()
    {
        const DefaultTagFormatter formatter;
        QCOMPARE(formatter.getPropertyName({1, 0, 1.0}, properties()), "length");
        QCOMPARE(formatter.formatPropertyLabelTooltip({1, 0, 1.0}, properties()), "Geometry/Size/length");
        QCOMPARE(formatter.getPropertyName({-1, 0, 1.0}, properties()), QString());
        QCOMPARE(formatter.formatPropertyLabelTooltip({-1, 0, 1.0}, properties()), QString());
    }

    void theExamplesTagsRead()
    {
        const auto example = ExampleFilterProperties::createExampleFilterProperties();
        const DefaultTagFormatter formatter;
        const FilterOperatorsModel unused;
        QCOMPARE(formatter.formatTag({7, FilterOperatorsModel::Equal, 3}, *example, unused), "integer = 3 item(s)");
        QCOMPARE(formatter.formatTag({6, FilterOperatorsModel::Equal, 12.0}, *example, unused), "parameter = 12 inch");
        // Without a host there are no colours and no lineweights to name.
        QCOMPARE(formatter.formatTag({3, FilterOperatorsModel::Is, QVariantList{0}}, *example, unused), "color is ");
        QCOMPARE(formatter.formatTag({4, FilterOperatorsModel::Is, 0}, *example, unused), "lineweight is ");
    }

    void valuesAreJoinedByTheWayTheyAreShown()
    {
        const QStringList texts = {"A", "<b>"};
        const FakeProperties& model = properties();
        QCOMPARE(model.valueToString(0, texts), "*Multiple*");
        QCOMPARE(model.valueToString(0, texts, false, true), "*Multiple*");
        QCOMPARE(model.valueToString(0, texts, true), "A\n<b>");
        QCOMPARE(model.valueToString(0, texts, true, true), "A<br><b>"); // only names of colours are escaped
        QCOMPARE(model.valueToString(0, QStringList{"A"}, true, true), "A");
        QCOMPARE(model.valueToString(4, "x", true, true), QString());
    }

    void coloursCountTheStandardOnesOnly()
    {
        const velmtest::FilterHost host;
        const FakeProperties model = {{"color", "color", {}, {}, {}, {}}};
        const_cast<FakeProperties&>(model).getColorModel()->setIsVaries(true);
        const int standard = model.getColorModel()->rowCount() - 2; // the last ones: varies and load
        QCOMPARE(model.valueToString(0, QVariantList{0}), "<By> Layer");
        QCOMPARE(model.valueToString(0, QVariantList{2, 3}, true), "1\n2");
        QVERIFY(!model.valueToString(0, QVariantList{standard - 1}).isEmpty());
        QCOMPARE(model.valueToString(0, QVariantList{standard, standard + 1, -1}), QString());
        QCOMPARE(model.valueToString(0, QVariantList{standard}, true, true), QString());
        QCOMPARE(model.valueToString(0, QVariantList{0, 2}, true, true),
                 "<font color='#010203'>&#11200;</font> &lt;By&gt; Layer<br><font color='#010203'>&#11200;</font> 1");
    }

    void aLineweightIsNamedByTheHost()
    {
        const velmtest::FilterHost host;
        const FakeProperties model = {{"lineweight", "lineWeight", {}, {}, {}, {}}};
        QStringList names;
        for (int row = -1; row <= 5; ++row)
            names += model.valueToString(0, row);
        names.sort();
        QCOMPARE(names, QStringList({"", "", "0.00 mm", "0.25 mm", "By block", "By layer", "Default"}));
        QCOMPARE(model.valueToString(0, QVariant(), true), model.valueToString(0, 0)); // nothing counts as row 0
    }

    void theOperationsKeepTheirSlots()
    {
#ifdef VELM_READS_VTABLES
        using velmtest::slotOf;
        // The destructor takes the first two.
        QCOMPARE((QList{slotOf(&FilterTagFormatter::getPropertyName),
                        slotOf(&FilterTagFormatter::formatPropertyLabelTooltip), slotOf(&FilterTagFormatter::formatTag),
                        slotOf(&FilterTagFormatter::formatTagToolTip)}),
                 velmtest::slotsFrom(2, 4));
#else
        QSKIP("only read where the tables are laid out so");
#endif
    }
};

QTEST_GUILESS_MAIN(TestTagFormatter)
#include "tst_tagformatter.moc"
