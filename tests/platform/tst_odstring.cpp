#include <QTest>

#include "od/odarray.h"
#include "od/oderror.h"
#include "od/odstring.h"
#include "support/table.h"

#include <limits>

class tst_OdString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void narrowTextGetsItsWideFormWhenNeeded()
    {
        const OdString text("Ma\xc3\x9f \xf0\x9f\x93\x90");
        QVERIFY(!text.hasUnicode());
        QVERIFY(!text.isEmpty());
        QVERIFY(text == OdString(L"Maß \U0001F4D0"));
        QVERIFY(text.hasUnicode());
        QCOMPARE(OdString(L"Maß \U0001F4D0").utf8(), text.utf8());

        QVERIFY(OdString(static_cast<const char*>(nullptr)).isEmpty());
        QVERIFY(OdString(static_cast<const wchar_t*>(nullptr)).isEmpty());
        QVERIFY(OdString(L"abc", -1).isEmpty());
        QCOMPARE(OdString(L"a\0b", 3).getLength(), 3);
        QCOMPARE(OdString(L"a\0b", 3).utf8(), std::string("a\0b", 3));
    }

    void badUtf8IsReplaced_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("bytes", "expected");
        row("a byte that begins nothing", "a\xff z", "a\ufffd z");
        row("cut off at the end", "a\xc3", "a\ufffd");
        row("an overlong zero", "\xc0\x80", "\ufffd\ufffd");
    }
    void badUtf8IsReplaced()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        QCOMPARE(QString::fromStdWString(OdString(bytes.constData()).wide()), expected);
    }

    void editingEndsTheNarrowForm()
    {
        OdString text("narrow");
        text += L'!';
        QCOMPARE(text.utf8(), std::string("narrow!"));
        text += text;
        QVERIFY(text == OdString(L"narrow!narrow!"));
        QVERIFY(text.makeUpper() == OdString(L"NARROW!NARROW!"));
        text.empty();
        QVERIFY(text.isEmpty());
        QCOMPARE(text.utf8(), std::string());
        const OdString left("a");
        QVERIFY(left + "b" + L"c" == OdString(L"abc"));
        QCOMPARE(left.utf8(), std::string("a"));
    }

    void positionsOutsideTheText()
    {
        const OdString text(L"abcabc");
        QCOMPARE(text.find(L"bc"), 1);
        QCOMPARE(text.find(L"bc", 2), 4);
        QCOMPARE(text.find(L"bc", 7), -1);
        QCOMPARE(text.find(L"bc", -5), 1);
        QVERIFY(text.mid(4, 99) == OdString(L"bc"));
        QVERIFY(text.mid(6).isEmpty());
        QVERIFY(text.mid(-2, 2) == OdString(L"ab"));
        QVERIFY(text.left(0).isEmpty());
        QCOMPARE(text.getAt(5), L'c');
        QVERIFY_THROWS_EXCEPTION(OdError_InvalidIndex, text.getAt(6));
        QVERIFY_THROWS_EXCEPTION(OdError_InvalidIndex, text.getAt(-1));
    }

    void ordersWithAndWithoutCase()
    {
        QCOMPARE(OdString(L"ÄB").iCompare("äb"), 0);
        QCOMPARE(OdString(L"ab").iCompare(L"ABC"), -1);
        QCOMPARE(OdString(L"b").iCompare(L"A"), 1);
        QCOMPARE(OdString("b").compare(L"a"), 1);
        QVERIFY(OdString("A") < OdString(L"a"));
        // Values that are no characters at all.
        const OdString beyond(std::wstring(1, std::numeric_limits<wchar_t>::max()));
        QCOMPARE(beyond.iCompare(L"a"), 1);
        QVERIFY(!beyond.utf8().empty());
    }

    void trimsAllBlanks()
    {
        OdString text(L" \t\u00a0a b\r\n ");
        QVERIFY(text.trimLeft() == OdString(L"a b\r\n "));
        QVERIFY(text.trimRight() == OdString(L"a b"));
        OdString blanks("  ");
        QVERIFY(blanks.trimRight().isEmpty());
    }

    void errorsSayWhatHappened()
    {
        const OdError error(L"Größe");
        QCOMPARE(error.what(), "Gr\xc3\xb6\xc3\x9f"
                               "e");
        QCOMPARE(error.code(), eGeneralError);
        OdArray<int> array = {1};
        QVERIFY_THROWS_EXCEPTION(OdError_InvalidIndex, array[1]);
        QVERIFY_THROWS_EXCEPTION(OdError_InvalidIndex, OdArray<int>().last());
        try {
            array.removeAt(7);
            QFAIL("no exception");
        } catch (const OdError& invalid) {
            QCOMPARE(invalid.code(), eInvalidIndex);
            QVERIFY(!invalid.description().isEmpty());
        }
    }
};

QTEST_APPLESS_MAIN(tst_OdString)
#include "tst_odstring.moc"
