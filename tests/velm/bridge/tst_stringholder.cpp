#include "velm/bridge/stringholder.h"
#include "velm/bridge/strings.h"

#include "support/onewordcatalogue.h"
#include "support/table.h"

#include <QTest>

#include <optional>

using namespace velm;

class TestStringHolder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theWxFormIsMadeWhenItIsAskedFor()
    {
        StringHolder holder(QString("Größe"));
        QVERIFY(!holder.hasWxString());
        QVERIFY(holder.hasQtString());
        QVERIFY(holder.stringWx() == wxString(L"Größe"));
        QVERIFY(holder.hasWxString());
        // Once made, it is a string of its own.
        holder.stringQt() = "other";
        QVERIFY(holder.stringWx() == wxString(L"Größe"));
    }

    void theQtFormIsMadeOnlyOnRequestAndOnlyOnce()
    {
        StringHolder holder(L"abc");
        QVERIFY(holder.stringQt().isEmpty());
        QVERIFY(holder.populateQtStringFromWx());
        QCOMPARE(holder.stringQt(), QString("abc"));
        holder.stringWx() = "changed";
        QVERIFY(!holder.populateQtStringFromWx());
        QCOMPARE(holder.stringQt(), QString("abc"));
    }

    void anEmptyHolderHasNothingToConvert()
    {
        StringHolder holder;
        QVERIFY(holder.isEmpty());
        QVERIFY(!holder.populateQtStringFromWx());
        QVERIFY(holder.stringWx().empty());
        QVERIFY(holder.isEmpty());
        QCOMPARE(holder.iCompareTo(""), 0);
        QVERIFY(holder.iCompareTo("a") < 0);
    }

    void comparisonIgnoresCaseInEitherForm_data()
    {
        const auto row = velmtest::columns<bool>("fromWx");
        row("the wx form is compared where there is one", true);
        row("otherwise the Qt form is", false);
    }
    void comparisonIgnoresCaseInEitherForm()
    {
        QFETCH(bool, fromWx);
        const StringHolder holder = fromWx ? StringHolder(wxString("Beta")) : StringHolder(QString("Beta"));
        QCOMPARE(holder.iCompareTo("bETA"), 0);
        QVERIFY(holder.iCompareTo("alpha") > 0);
        QVERIFY(holder.iCompareTo("GAMMA") < 0);
    }

    void copiesAreIndependentAndMovesCarryBothForms()
    {
        StringHolder original(QString("one"));
        StringHolder copy(original);
        copy.stringQt() = "two";
        QCOMPARE(original.stringQt(), QString("one"));
        original.stringWx();
        copy = original;
        QVERIFY(copy.hasWxString());
        StringHolder moved(std::move(copy));
        QVERIFY(moved.hasWxString() && moved.hasQtString());
        copy = moved;
        QCOMPARE(copy.stringQt(), QString("one"));
    }

    void whatWasMovedFromIsAnEmptyHolder()
    {
        StringHolder source(QString("one"));
        StringHolder target(std::move(source));
        QVERIFY(source.isEmpty());
        const StringHolder copyOfEmpty(source);
        QVERIFY(copyOfEmpty.isEmpty());

        source = std::move(target);
        QVERIFY(target.stringWx().empty());
        QCOMPARE(source.stringQt(), QString("one"));
        source = target;
        QVERIFY(source.isEmpty());
        source.stringQt() = "two";
        StringHolder& itself = source;
        source = std::move(itself);
        QCOMPARE(source.stringQt(), QString("two"));
    }

    void sharedWordsFollowTheCatalogue()
    {
        QCOMPARE(QString::fromWCharArray(Strings::strNone()), QString("None"));
        QCOMPARE(QString::fromWCharArray(Strings::strMultiple()), QString("*Multiple*"));
        QCOMPARE(QString::fromWCharArray(Strings::kb()), QString("Kb"));
        QCOMPARE(QString::fromWCharArray(Strings::mb()), QString("Mb"));
        QCOMPARE(QString::fromWCharArray(Strings::strColor()), QString("Color"));
        std::optional<velmtest::OneWordCatalogue> catalogue(std::in_place, "Color", "Farbe");
        QCOMPARE(QString::fromWCharArray(Strings::strColor()), QString("Farbe"));
        // A word that the catalogue doesn't know stays as it is.
        QCOMPARE(QString::fromWCharArray(Strings::strNone()), QString("None"));
        catalogue.reset();
        QCOMPARE(QString::fromWCharArray(Strings::strColor()), QString("Color"));
    }
};

QTEST_APPLESS_MAIN(TestStringHolder)
#include "tst_stringholder.moc"
