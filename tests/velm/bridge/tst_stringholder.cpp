#include "velm/bridge/stringholder.h"
#include "velm/bridge/strings.h"

#include <QTest>

#include <wx/arrstr.h>
#include <wx/translation.h>

using namespace velm;

namespace {
/// A catalogue that knows one word.
class OneWordLoader : public wxTranslationsLoader
{
public:
    wxMsgCatalog* LoadCatalog(const wxString& domain, const wxString&) override
    {
        // A message catalogue of one entry: magic, revision, count, offsets of both tables; "Color", "Farbe".
        QByteArray data;
        for (const quint32 number : {0x950412deU, 0U, 1U, 28U, 36U, 0U, 0U, 5U, 44U, 5U, 50U})
            data.append(reinterpret_cast<const char*>(&number), sizeof number);
        data += QByteArray("Color\0Farbe\0", 12);
        return wxMsgCatalog::CreateFromData(wxScopedCharBuffer::CreateNonOwned(data.constData(), data.size()), domain);
    }
    wxArrayString GetAvailableTranslations(const wxString&) const override
    {
        wxArrayString languages;
        languages.Add("de");
        return languages;
    }
};
} // namespace

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
        QTest::addColumn<bool>("fromWx");
        QTest::newRow("the wx form is compared where there is one") << true;
        QTest::newRow("otherwise the Qt form is") << false;
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

    void sharedWordsFollowTheCatalogue()
    {
        QCOMPARE(QString::fromWCharArray(Strings::strNone()), QString("None"));
        QCOMPARE(QString::fromWCharArray(Strings::strMultiple()), QString("*Multiple*"));
        QCOMPARE(QString::fromWCharArray(Strings::kb()), QString("Kb"));
        QCOMPARE(QString::fromWCharArray(Strings::mb()), QString("Mb"));
        QCOMPARE(QString::fromWCharArray(Strings::strColor()), QString("Color"));
        auto* translations = new wxTranslations; // given away to wx
        translations->SetLoader(new OneWordLoader);
        translations->SetLanguage("de");
        QVERIFY(translations->AddCatalog("host"));
        wxTranslations::Set(translations);
        QCOMPARE(QString::fromWCharArray(Strings::strColor()), QString("Farbe"));
        // A word that the catalogue doesn't know stays as it is.
        QCOMPARE(QString::fromWCharArray(Strings::strNone()), QString("None"));
        wxTranslations::Set(nullptr);
        QCOMPARE(QString::fromWCharArray(Strings::strColor()), QString("Color"));
    }
};

QTEST_APPLESS_MAIN(TestStringHolder)
#include "tst_stringholder.moc"
