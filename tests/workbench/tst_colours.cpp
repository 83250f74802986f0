#include "app/hostservices.h"
#include "host/colordescription.h"
#include "host/colordialogcontroller.h"
#include "host/pagegroup.h"
#include "od/oddbdatabase.h"
#include "panels/propertytexts.h"
#include "support/scopes.h"
#include "support/table.h"
#include "ut/config.h"
#include "ut/themecolors.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/colormodel.h"
#include "velm/drawingprops/lineweightmodel.h"

#include <QSignalSpy>
#include <QtTest>

#include <wx/defs.h>

using namespace workbench;

namespace {
OdCmColor colorOf(int index)
{
    return OdCmColor::fromIndex(static_cast<std::uint16_t>(index));
}

/// As in "Red #ff0000", with a "/" for a diagonal.
QString described(const velm::ColorDescription& description)
{
    const QColor color = velm::toQt(description.color);
    return velm::toQt(description.name) + QLatin1Char(' ') +
           (color.alpha() == 0 ? QStringLiteral("clear") : color.name()) +
           (description.drawDiagonal ? QStringLiteral("/") : QString());
}

/// What a colour combo with these flags lists, as in "Red, Yellow".
QString rowsOf(HostServices& services, int flags)
{
    const velm::ExternalFunctions functions = services.functions();
    velm::ColorModel model(*functions.guiController(), *functions.dlgFactory(), flags, false, {}, {}, {});
    QStringList names;
    for (int row = 0; row < model.rowCount() - 1; ++row)
        names += model.getColorObject(row)->name();
    return names.join(QStringLiteral(", "));
}
} // namespace

/// What the host answers about colours and lineweights, and the state behind its colour dialog.
class ColoursTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_config.emplace(); }

    void aColourIsDescribed_data()
    {
        velmtest::columns<OdCmColor, int, bool, QString, QString>("color", "flags", "layerOverride", "dark", "light");
        const auto row = [](const char* name, const OdCmColor& color, int flags, const char* dark,
                            const char* light = nullptr, bool layerOverride = false) {
            QTest::newRow(name) << color << flags << layerOverride << QString(dark) << QString(light ? light : dark);
        };
        row("index 7 follows the theme", colorOf(7), 3, "White #ffffff", "White #000000");
        row("index 6 doesn't", colorOf(6), 3, "Magenta #ff00ff");
        row("an unnamed index", colorOf(30), 3, "Color 30 #ff7f00");
        row("the last index", colorOf(255), 3, "Color 255 #ffffff");
        row("a true colour with channels that differ", OdCmColor::fromRGB(10, 20, 30), 3, "10,20,30 #0a141e");
        row("by block is as index 7 where there is no block", colorOf(0), 3, "ByBlock #ffffff/", "ByBlock #000000/");
        row("none has no colour", colorOf(257), 11, "None clear/");
        row("by layer is the layer's", colorOf(256), 3, "ByLayer #010203");
        row("a viewport's own colour is marked", colorOf(256), 3, "ByLayer #010203/", nullptr, true);
        row("by layer stands for black", colorOf(256), 5, "Black #000000");
        row("by layer is drawn black below the real one", colorOf(256), 6, "ByLayer #000000");
        row("in white mode by layer stands for white", colorOf(256), 36, "White #ffffff");
        row("an index out of the table", OdCmColor(std::uint32_t(OdCmColor::kByACI) << 24 | 999), 3,
            "Color 999 #000000");
    }
    void aColourIsDescribed()
    {
        QFETCH(OdCmColor, color);
        QFETCH(int, flags);
        QFETCH(bool, layerOverride);
        const wxColour byLayer(1, 2, 3);
        QTEST(described(describeColor(color, byLayer, layerOverride, flags)), "dark");
        useLightTheme();
        QTEST(described(describeColor(color, byLayer, layerOverride, flags)), "light");
    }

    void combosListTheirColours()
    {
        PageGroup pages;
        HostServices services(pages);
        const QString standard = QStringLiteral("Red, Yellow, Green, Cyan, Blue, Magenta, White");
        QCOMPARE(rowsOf(services, 0), standard);
        QCOMPARE(rowsOf(services, 4), standard + ", Black");
        services.functions().guiController()->tryAddColor(OdCmColor::fromRGB(1, 2, 3), 1);
        QCOMPARE(rowsOf(services, 11), "ByLayer, ByBlock, None, " + standard + ", 1,2,3");
        QCOMPARE(rowsOf(services, 32), standard);
    }

    void lineWeightsAreListedAndNamedInTheUsersUnits()
    {
        PageGroup pages;
        HostServices services(pages);
        const velm::ExternalFunctions functions = services.functions();
        const velmtest::ScopedExternalFunctions scope(functions);
        velm::LineWeightModel model(*functions.guiController(), {true, true, true}, {});
        const auto object = [&model](int row) { return model.index(row, 0).data().value<velm::LineWeightObject*>(); };
        const auto names = [&] {
            QStringList result;
            for (int row = 0; row < model.rowCount(); ++row)
                result += object(row)->name();
            return result;
        };
        const int last = model.rowCount() - 1;
        const QStringList millimetres = names();
        QCOMPARE(millimetres.mid(0, 5), QStringList({"Default", "ByLayer", "ByBlock", "0.00 mm", "0.05 mm"}));
        QCOMPARE(millimetres.last(), QString("2.11 mm"));
        // Each is of another thickness, from thin to thick.
        for (int row = 4; row <= last; ++row)
            QVERIFY(object(row - 1)->factor() < object(row)->factor());
        QCOMPARE(object(last)->factor(), 1.0);
        QCOMPARE(object(0)->factor(), 25 / 211.0);

        const QSignalSpy renamed(object(last), &velm::LineWeightObject::lineWeightNameChanged);
        setLineWeightsInInches(true);
        m_config->reopen();
        const QStringList inches = names();
        QCOMPARE(inches.mid(0, 5), QStringList({"Default", "ByLayer", "ByBlock", "0.000\"", "0.002\""}));
        QCOMPARE(inches.last(), QString("0.083\""));
        QCOMPARE(QSet<QString>(inches.begin(), inches.end()).size(), last + 1);
        QCOMPARE(renamed.size(), 1);
        setLineWeightsInInches(false);
        QCOMPARE(names(), millimetres);
        QCOMPARE(functions.guiController()->lineWeightAt(-1), 0);
        QCOMPARE(functions.guiController()->lineWeightAt(last + 1), 0);
    }

    void theDefaultLineWeightIsThatOfTheDrawing()
    {
        PageGroup pages;
        HostServices services(pages);
        const auto defaultLineWeight = services.functions().defaultLineWeight;
        QCOMPARE(defaultLineWeight(), 25);
        auto database = std::make_unique<OdDbDatabase>();
        database->setLWDEFAULT(211);
        services.documents().open(std::make_unique<OdApDocument>(L"/a.dxf", std::move(database)));
        QCOMPARE(defaultLineWeight(), 211);
        services.documents().close(services.documents().curDocument());
        QCOMPARE(defaultLineWeight(), 25);
    }

    void theDialogBeginsWithWhatItMayGive_data()
    {
        // The former colour, and what there is to choose.
        const auto row = velmtest::columns<OdCmColor, int, QString>("initial", "flags", "former");
        row("an index", colorOf(30), 0, "Color 30: true");
        row("a true colour", OdCmColor::fromRGB(1, 2, 3), 65, "1,2,3: ByLayer block none true");
        row("a true colour where there are none", OdCmColor::fromRGB(1, 2, 3), 8, ":");
        row("by layer", colorOf(256), 9, "ByLayer: ByLayer block");
        row("by layer where it isn't offered", colorOf(256), 0, ": true");
        row("by layer as black", colorOf(256), 10, "Black: Black");
        row("by block where it isn't offered", colorOf(0), 10, ": Black");
        row("none", colorOf(257), 72, "None: none");
        row("none where it isn't offered", colorOf(257), 9, ": ByLayer block");
        row("several colours", colorOf(1), 24, "*Varies*:");
        row("a colour of no method", OdCmColor(std::uint32_t(0)), 73, ": ByLayer block none");
    }
    void theDialogBeginsWithWhatItMayGive()
    {
        QFETCH(OdCmColor, initial);
        QFETCH(int, flags);
        ColorDialogController controller(&initial, static_cast<unsigned>(flags));
        QString found = controller.formerName() + QLatin1Char(':');
        if (controller.hasByLayer())
            found += QLatin1Char(' ') + controller.byLayerName();
        for (const auto& [has, what] :
             {std::pair(controller.hasByBlock(), " block"), std::pair(controller.hasNone(), " none"),
              std::pair(controller.hasTrueColors(), " true")})
            found += QLatin1String(has ? what : "");
        QTEST(found, "former");
        const bool hasFormer = !found.startsWith(QLatin1Char(':')) && !(flags & 16);
        QCOMPARE(controller.hasChoice(), hasFormer);
        // Without a choice it can only be cancelled.
        QCOMPARE(controller.beforeEndModal(wxID_OK), hasFormer);
        QVERIFY(controller.beforeEndModal(wxID_CANCEL));
        if (hasFormer)
            QCOMPARE(controller.chosen(), initial);
    }

    void theDialogGivesExactlyWhatIsChosen()
    {
        ColorDialogController controller(nullptr, 1);
        const QSignalSpy changes(&controller, &ColorDialogController::changed);
        for (const int refused : {-1, 257, 258, 65536 + 5})
            controller.setIndex(refused);
        QVERIFY(!controller.hasChoice() && changes.isEmpty());
        for (const int index : {0, 1, 255, 256}) {
            controller.setIndex(index);
            QCOMPARE(controller.chosen(), colorOf(index));
            QCOMPARE(controller.index(), index);
        }
        // A true colour stays one, also where the table has the same.
        controller.setChannels(300, -5, 0);
        QCOMPARE(controller.chosen(), OdCmColor::fromRGB(255, 0, 0));
        QCOMPARE(controller.index(), -1);
        QVERIFY(controller.setHex(QStringLiteral(" 2A7fff ")));
        QCOMPARE(controller.chosen(), OdCmColor::fromRGB(42, 127, 255));
        QCOMPARE(controller.name(), QString("42,127,255"));
        QCOMPARE(changes.size(), 6);
        for (const char* text : {"", "#", "#12345", "#1234567", "#12345g", "##123456", "-12345"})
            QVERIFY(!controller.setHex(QLatin1String(text)));
        QVERIFY(controller.setHex(QStringLiteral("#2a7fff")));
        QCOMPARE(changes.size(), 6);
    }

    void cleanup() { m_config.reset(); }

private:
    static void useLightTheme()
    {
        ut::Config::writeLong(ut::ECfgGroup::Interface, L"COLORTHEME", static_cast<long>(ut::EGuiColorTheme::Light));
    }

    std::optional<velmtest::TemporaryConfig> m_config;
};

QTEST_MAIN(ColoursTest)

#include "tst_colours.moc"
