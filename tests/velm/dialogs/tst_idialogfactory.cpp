#include "velm/dialogs/idialogfactory.h"

#include "support/fakehost.h"

#include <QTest>

using namespace velm;

class TestIDialogFactory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyHelperReachesTheOneMessage()
    {
        velmtest::FakeDialogFactory factory;
        const IDialogFactory& constFactory = factory;
        auto* parent = reinterpret_cast<wxWindow*>(this); // never followed
        factory.answers = {{4, true}, {8, true}, {16, true}, {2, true}, {99, true}, {4, true}, {77, false}};

        QCOMPARE(constFactory.showInfoMessage(L"Caption", L"Text", nullptr, MessageButtonStyle::OK), 4);
        QCOMPARE(constFactory.showWarningMessage(L"Caption", L"Text", parent, MessageButtonStyle::YesNo), 8);
        QCOMPARE(constFactory.showErrorMessage(L"Caption", L"Text", nullptr, MessageButtonStyle::OKCancel), 16);
        QCOMPARE(constFactory.showMessage(L"C", L"T", EMessageStyle::Warning, MessageButtonStyle::YesNoCancel, nullptr),
                 2);
        QCOMPARE(constFactory.showMessage(L"C", L"T", EMessageStyle(3), {{L"&Clone", 99}, {L"&Skip", 5}}, parent), 99);
        QCOMPARE(
            factory.showMessage(L"C", L"T", L"Don't ask again", EMessageStyle::Error, MessageButtonStyle::OK, nullptr),
            std::pair(4, true));
        QCOMPARE(factory.showMessage(L"C", L"T", L"E", EMessageStyle::Information, {{L"X", 77}}, parent),
                 std::pair(77, false));

        QCOMPARE(factory.log, QStringList({
                                  "info | Caption | Text |  | &OK 4",
                                  "warning | Caption | Text |  | &Yes 2, &No 8 | parent",
                                  "error | Caption | Text |  | &OK 4, &Cancel 16",
                                  "warning | C | T |  | &Yes 2, &No 8, &Cancel 16",
                                  "3 | C | T |  | &Clone 99, &Skip 5 | parent",
                                  "error | C | T | Don't ask again | &OK 4",
                                  "info | C | T | E | X 77 | parent",
                              }));
    }

    void anUnknownButtonStyleIsOk()
    {
        const auto buttons = buttonsFromButtonStyle(static_cast<MessageButtonStyle>(99));
        QCOMPARE(buttons.size(), std::size_t(1));
        QCOMPARE(buttons[0].id, 4);
        QVERIFY(buttons[0].text == OdString(L"&OK"));
    }

    void aPickedColorComesBackOpaque()
    {
        velmtest::FakeDialogFactory factory;
        factory.colors = {OdCmColor::fromRGB(1, 2, 3), std::nullopt};
        const auto picked = factory.dlgColor(nullptr, wxColour(0x10, 0x20, 0x30, 0x40), 17);
        QVERIFY(picked && *picked == wxColour(1, 2, 3, 255));
        QVERIFY(!factory.dlgColor(nullptr, wxColour(0, 0, 0), 0));
        QCOMPARE(factory.log, QStringList({"color c2102030 flags 17", "color c2000000 flags 0"}));
    }

    void theFakerOfMessageBoxesIsDroppedByDefault()
    {
        const auto alive = std::make_shared<int>();
        velmtest::FakeDialogFactory factory;
        factory.setupMessageBoxFaker([alive](const wxString&, const wxString&, int, wxWindow*) { return *alive; });
        QCOMPARE(alive.use_count(), 1L);
        factory.unsetMessageBoxFaker();
    }

    void defaultActionsHaveNames()
    {
        QCOMPARE(getDefaultActionName(EDefaultAction::Clone), QString("Clone"));
        QCOMPARE(getDefaultActionName(EDefaultAction::Remove), QString("Remove"));
        QCOMPARE(getDefaultActionName(EDefaultAction::Rename), QString("Rename"));
        QVERIFY(getDefaultActionName(static_cast<EDefaultAction>(3)).isNull());
    }
};

QTEST_APPLESS_MAIN(TestIDialogFactory)
#include "tst_idialogfactory.moc"
