#include "velm/units/velmconfig.h"

#include "support/scopes.h"

#include <QTest>

using namespace velm;
using ut::ECfgGroup;

class TestVelmConfig : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aMissingEntryLeavesTheValueOfTheCallerAlone()
    {
        const velmtest::TemporaryConfig store;
        bool flag = true;
        short small = 1;
        long number = 2;
        double real = 3.5;
        wxString text = "text";
        wxColour color(1, 2, 3);
        wxSize size(4, 5);
        wxPoint point(6, 7);
        wxRect rect(1, 2, 3, 4);
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", flag) && flag);
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", small) && small == 1);
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", number) && number == 2);
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", real) && real == 3.5);
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", text) && text == "text");
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", color) && color == wxColour(1, 2, 3));
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", size) && size == wxSize(4, 5));
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", point) && point == wxPoint(6, 7));
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "a", rect) && rect == wxRect(1, 2, 3, 4));
    }

    void whatWasWrittenIsThereForTheNextProcess()
    {
        velmtest::TemporaryConfig store;
        QVERIFY(VelmConfig::writeBool(ECfgGroup::General, "Panel/Open", false));
        QVERIFY(VelmConfig::writeLong(ECfgGroup::Interface, "Panel/Open", -7));
        VelmConfig::writeDialogSetting("Layers", "Column Data/Name/Width", 120L);
        VelmConfig::writeDialogSetting("Layers", "Column Data/Name/Hidden", true);
        store.reopen();

        bool flag = true;
        QVERIFY(VelmConfig::read(ECfgGroup::General, "Panel/Open", flag) && !flag);
        long number = 0;
        QVERIFY(VelmConfig::read(ECfgGroup::Interface, "Panel/Open", number));
        QCOMPARE(number, -7L);
        QCOMPARE(VelmConfig::readDialogSetting("Layers", "Column Data/Name/Width", 1L), 120L);
        QCOMPARE(VelmConfig::readDialogSetting("Layers", "Column Data/Name/Hidden", false), true);
        // The dialog family is the group of dialogs, and the key is nothing but the joined names.
        QVERIFY(VelmConfig::read(ECfgGroup::Dialogs, "Layers/Column Data/Name/Width", number));
        QCOMPARE(number, 120L);
    }

    void aFoundValueWinsOverTheDefaultWhateverItIs()
    {
        const velmtest::TemporaryConfig store;
        QCOMPARE(VelmConfig::readDialogSetting("d", "flag", true), true);
        VelmConfig::writeDialogSetting("d", "flag", false);
        QCOMPARE(VelmConfig::readDialogSetting("d", "flag", true), false);

        QVERIFY(VelmConfig::readDialogSetting("d", "rect", wxRect(1, 2, 3, 4)) == wxRect(1, 2, 3, 4));
        ut::Config::writeRect(ECfgGroup::Dialogs, L"d/rect", wxRect(0, 0, 0, 0));
        QVERIFY(VelmConfig::readDialogSetting("d", "rect", wxRect(1, 2, 3, 4)) == wxRect(0, 0, 0, 0));

        QVERIFY(VelmConfig::readDialogSetting("d", "text", wxString("x")) == "x");
        ut::Config::writeString(ECfgGroup::Dialogs, L"d/text", L"");
        QVERIFY(VelmConfig::readDialogSetting("d", "text", wxString("x")).empty());

        QCOMPARE(VelmConfig::readDialogSetting("d", "real", 2.5), 2.5);
        ut::Config::writeDouble(ECfgGroup::Dialogs, L"d/real", -0.125);
        QCOMPARE(VelmConfig::readDialogSetting("d", "real", 2.5), -0.125);

        QCOMPARE(VelmConfig::readDialogSetting("d", "short", short(9)), short(9));
        ut::Config::writeLong(ECfgGroup::Dialogs, L"d/short", -3);
        QCOMPARE(VelmConfig::readDialogSetting("d", "short", short(9)), short(-3));
    }

    void keysAreJoinedWithOneSlashAlways()
    {
        const velmtest::TemporaryConfig store;
        ut::Config::writeLong(ECfgGroup::Dialogs, L"/setting", 1);
        QCOMPARE(VelmConfig::readDialogSetting("", "setting", 0L), 1L);
        ut::Config::writeLong(ECfgGroup::Dialogs, L"Größe/ÄÖ", 2);
        QCOMPARE(VelmConfig::readDialogSetting(L"Größe", L"ÄÖ", 0L), 2L);
        QCOMPARE(VelmConfig::readDialogSetting(L"größe", L"ÄÖ", 0L), 0L);
    }

    void aTextThatIsNoColorRemovesItself()
    {
        const velmtest::TemporaryConfig store;
        ut::Config::writeString(ECfgGroup::Dialogs, L"d/color", L"#102030");
        QVERIFY(VelmConfig::readDialogSetting("d", "color", wxColour(9, 9, 9)) == wxColour(0x10, 0x20, 0x30));
        ut::Config::writeString(ECfgGroup::Dialogs, L"d/color", L"no colour at all");
        QVERIFY(VelmConfig::readDialogSetting("d", "color", wxColour(9, 9, 9)) == wxColour(9, 9, 9));
        OdString left;
        QVERIFY(!ut::Config::read(ECfgGroup::Dialogs, L"d/color", left));

        // Also when the caller's colour was a good one before.
        ut::Config::writeString(ECfgGroup::General, L"color", L"#zz");
        wxColour color(1, 2, 3);
        QVERIFY(!VelmConfig::read(ECfgGroup::General, "color", color));
        QVERIFY(!ut::Config::read(ECfgGroup::General, L"color", left));
    }

    void entriesOfADialogAreListedAsTheStoreHasThem()
    {
        const velmtest::TemporaryConfig store;
        QVERIFY(VelmConfig::readDialogEntryList("Layers", "Column Data").empty());
        VelmConfig::writeDialogSetting("Layers", "Column Data/On/Width", 1L);
        VelmConfig::writeDialogSetting("Layers", "Column Data/Name/Width", 1L);
        VelmConfig::writeDialogSetting("Layers", "Column Data/Plain", 1L);
        QVERIFY((VelmConfig::readDialogEntryList("Layers", "Column Data") == std::vector<wxString>{"Name", "On"}));
    }

    void sizesAndPointsAreReadFromTheStore()
    {
        const velmtest::TemporaryConfig store;
        ut::Config::writeSize(ECfgGroup::General, L"size", wxSize(3, 4));
        ut::Config::writePoint(ECfgGroup::General, L"point", wxPoint(-5, 6));
        wxSize size;
        wxPoint point;
        QVERIFY(VelmConfig::read(ECfgGroup::General, "size", size) && size == wxSize(3, 4));
        QVERIFY(VelmConfig::read(ECfgGroup::General, "point", point) && point == wxPoint(-5, 6));
    }
};

QTEST_APPLESS_MAIN(TestVelmConfig)
#include "tst_velmconfig.moc"
