#include <QTest>

#include "support/table.h"
#include "ut/uuid.h"

using ut::UUID;

class tst_Uuid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textRoundTrips()
    {
        const UUID made = UUID::create();
        QVERIFY(!made.isNil());
        QVERIFY(made != UUID::create());
        QVERIFY(UUID(made.toString()) == made);
        const OdString text = L"00112233-4455-6677-8899-aabbccddeeff";
        QVERIFY(UUID(text).toString() == text);
        QVERIFY(UUID(L"{00112233-4455-6677-8899-AABBCCDDEEFF}") == UUID(text));
        QVERIFY(UUID(text) < UUID(L"00112234-0000-0000-0000-000000000000"));
    }

    void otherTextsAreNil_data()
    {
        const auto row = velmtest::columns<QString>("text");
        for (const char* text :
             {"", "x", "{}", "00112233-4455-6677-8899-aabbccddeef", "00112233-4455-6677-8899-aabbccddeeff0",
              "00112233445566778899aabbccddeeff", "{00112233-4455-6677-8899-aabbccddeeff",
              "00112233-4455-6677-8899-aabbccddeegg", " 00112233-4455-6677-8899-aabbccddeeff"})
            row(*text ? text : "an empty text", QString::fromLatin1(text));
    }
    void otherTextsAreNil()
    {
        QFETCH(QString, text);
        QVERIFY(UUID(text.toStdWString()) == UUID::s_cNil);
    }
};

QTEST_APPLESS_MAIN(tst_Uuid)
#include "tst_uuid.moc"
