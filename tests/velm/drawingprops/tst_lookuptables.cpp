#include "velm/drawingprops/fontfacts.h"
#include "velm/drawingprops/locationlists.h"
#include "velm/drawingprops/rankandcount.h"

#include "velm/bridge/conversions.h"

#include <QFontDatabase>
#include <QRegularExpression>
#include <QTest>

#include <map>

using namespace velm;

class TestLookUpTables : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachTimeZoneIsWhereItsTextSays()
    {
        const QStringList texts = toQtStringList(timeZoneStrings());
        QCOMPARE(texts.size(), 76);
        const QRegularExpression pattern(R"(^\((?:GMT|UTC)(?:([+-])(\d\d):(\d\d))?\) \S)");
        std::map<int, int> atOffset;
        for (int index = 0; index < texts.size(); ++index) {
            const QRegularExpressionMatch match = pattern.match(texts[index]);
            QVERIFY2(match.hasMatch(), qPrintable(texts[index]));
            const int offset = match.captured(2).toInt() * 1000 + match.captured(3).toInt() * 10;
            const int sign = match.captured(1) == "-" ? -1 : 1;
            const int before = atOffset[sign * offset]++;
            QCOMPARE(int(timeZone(index)), sign * (offset + before));
            QCOMPARE(timeZone(timeZone(index)), index);
        }
    }

    void timeZonesKeepTheirNumbers()
    {
        const std::map<int, int> known{{0, -12000}, {1, -11000}, {5, -7000}, {6, -7001}, {7, -7002}, {8, -6000},
                                       {18, -3300}, {55, 7000},  {56, 7001}, {57, 8000}, {75, 13000}};
        for (const auto& [index, value] : known)
            QCOMPARE(int(timeZone(index)), value);
        QCOMPARE(timeZone(OdDb::kDarwin), 66);
        QCOMPARE(timeZone(OdDb::kGreenwichMeanTime_Dublin_Edinburgh_Lisbon_London), 26);
        QCOMPARE(timeZoneStrings()[8], wxString("(GMT-06:00) Central Time (US & Canada))"));
    }

    void unknownTimeZonesArePacific()
    {
        for (const int index : {-1, 76, 1000})
            QCOMPARE(int(timeZone(index)), -8000);
        for (const int value : {-7003, 3, 14000})
            QCOMPARE(timeZone(static_cast<OdDb::TimeZone>(value)), 4);
    }

    void anglesHaveTwoFormats()
    {
        QCOMPARE(toQtStringList(angleFormatStrings()),
                 QStringList({"Decimal degrees (DD) Latitude / Longitude",
                              "Degrees Minutes Seconds (DMS) Latitude / Longitude"}));
    }

    void rankAndCount()
    {
        QCOMPARE(getRankAndCount({1, 2, 2, 5}, 2), std::pair(1, 2));
        QCOMPARE(getRankAndCount({5, 2, 1, 2}, 3), std::pair(3, 0));
        QCOMPARE(getRankAndCount({}, 0), std::pair(0, 0));
    }

    void fontsTellTheirStyles()
    {
        QVERIFY2(!QFontDatabase::families().isEmpty(), "the tests need an installed font");
        for (const QString& family : QFontDatabase::families()) {
            const OdString name = odFromQt(family);
            QVERIFY(getStyles(name).size() > 0);
            for (const OdString& style : getStyles(name)) {
                QVERIFY2(getWeight(name, style) > 0, qPrintable(family + '/' + toQt(style))); // unknown ones have none
                QCOMPARE(isBold(name, style), QFontDatabase::bold(family, toQt(style)));
                QCOMPARE(isItalic(name, style), QFontDatabase::italic(family, toQt(style)));
            }
            const auto systems = QFontDatabase::writingSystems(family);
            const OdArray<OdString> languages = getLanguages(name);
            QCOMPARE(languages.size(), static_cast<unsigned>(systems.size()));
            for (int index = 0; index < systems.size(); ++index)
                QCOMPARE(toQt(languages[index]), QFontDatabase::writingSystemName(systems[index]));
        }
        QVERIFY(getStyles(L"No such family").isEmpty() && getLanguages(L"No such family").isEmpty());
    }
};

QTEST_MAIN(TestLookUpTables)
#include "tst_lookuptables.moc"
