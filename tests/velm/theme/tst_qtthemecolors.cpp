#include "velm/theme/qtthemecolors.h"

#include "faketheme.h"
#include "support/scopes.h"
#include "support/table.h"
#include "ut/config.h"
#include "velm/bridge/engine.h"
#include "velm/bridge/iqtcontroller.h"

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTest>

using namespace velm;
using ut::EGuiColor;
using ut::EGuiColorTheme;

namespace {
constexpr unsigned long fallback = 0xC0C0C0;

/// A page that only hears of its reload.
class Page : public IQtController
{
public:
    QList<int> reloads;
    void reload(int reason) override { reloads += reason; }

    void hostOperation1() override {}
    void hostOperation2() override {}
    void hostOperation3() override {}
    void hostOperation4() override {}
    void hostOperation5() override {}
    void hostOperation6() override {}
    void hostOperation7() override {}
    void hostOperation8() override {}
    void hostOperation9() override {}
    void hostOperation10() override {}
    void hostOperation11() override {}
    void hostOperation12() override {}
    void hostOperation13() override {}
    QObject* findInTransientPopups(const QString&) override { return nullptr; }
    void getInterfaces(std::vector<IQtControllerInterface*>&) const override {}
};
} // namespace

class TestQtThemeColors : public QObject
{
    Q_OBJECT
    std::unique_ptr<QQmlEngine> m_engine;
    Page m_page;

    QtThemeColors makeColors(EGuiColorTheme theme = EGuiColorTheme::Dark, ERefreshQml refresh = ERefreshQml::No)
    {
        return QtThemeColors(
            *m_engine, *qApp, [this] { return &m_page; }, theme, refresh);
    }
    QSharedPointer<QQmlPropertyMap> map() const
    {
        return m_engine->property("colorMap").value<QSharedPointer<QQmlPropertyMap>>();
    }

private Q_SLOTS:
    void initTestCase() { FakeTheme::registerType(); }
    void init()
    {
        m_engine = std::make_unique<QQmlEngine>();
        m_page.reloads.clear();
        FakeTheme::themes.clear();
        FakeTheme::makeColorMap = [](int theme) {
            return FakeTheme::colorMap(
                {{"grey10", theme == 0 ? "#eeeeee" : "#111111"}, {"grey3", "#333333"}, {"panelBackground", "#102030"}});
        };
        qApp->setStyleSheet("");
    }

    void aThemeColorsTheApplication()
    {
        QFont font = QApplication::font();
        font.setPointSize(21);
        QApplication::setFont(font);
        const QtThemeColors colors = makeColors();
        QCOMPARE(FakeTheme::themes, QList<int>{0});
        QCOMPARE(qApp->styleSheet(),
                 QString("\n* {\n  color:       #eeeeee;\n  font-size:   8pt;\n  font-family: \"%1\";\n"
                         "  background:  #333333;\n}\n\nQToolTip {\n  border: none;\n"
                         "  padding: 2px;\n}\n")
                     .arg(QApplication::font().family()));
        QVERIFY(m_page.reloads.isEmpty());
    }

    void aChangeReloadsThePageButTheFirstThemeNeedNot()
    {
        QtThemeColors colors = makeColors();
        QVERIFY(colors.setColorTheme(EGuiColorTheme::Light));
        QCOMPARE(m_page.reloads, QList<int>{0});
        QCOMPARE(FakeTheme::themes, QList<int>({0, 1}));
        QVERIFY(qApp->styleSheet().contains("#111111"));

        QtThemeColors withoutPage(*m_engine, *qApp, {}, EGuiColorTheme::Dark, ERefreshQml::Yes);
        QtThemeColors withNullPage(
            *m_engine, *qApp, [] { return nullptr; }, EGuiColorTheme::Dark, ERefreshQml::Yes);
        QCOMPARE(m_page.reloads.size(), 1);
    }

    void aChangeForgetsCompiledPagesButTheFirstThemeNeedNot()
    {
        QTemporaryFile file(QDir::tempPath() + "/XXXXXX.qml");
        QVERIFY(file.open());
        file.write("import QtQml\nQtObject {}");
        file.close();
        const QUrl page = QUrl::fromLocalFile(file.fileName());
        QVERIFY(loadQml(page, *m_engine));
        // From here on only what is compiled is left of the page.
        QVERIFY(file.remove());
        QtThemeColors colors = makeColors();
        QVERIFY(loadQml(page, *m_engine));
        QVERIFY(colors.setColorTheme(EGuiColorTheme::Light));
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("No such file or directory"));
        QVERIFY(!loadQml(page, *m_engine));
    }

    void aThemeThatDoesNotLoadChangesNothing()
    {
        QtThemeColors colors = makeColors();
        const QString styleSheet = qApp->styleSheet();
        qmlClearTypeRegistrations();
        m_engine = std::make_unique<QQmlEngine>();
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("module \"Tandolin.API.Core.Themes.Engine\" is not"));
        QtThemeColors broken(
            *m_engine, *qApp, [this] { return &m_page; }, EGuiColorTheme::Light, ERefreshQml::Yes);
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("module \"Tandolin.API.Core.Themes.Engine\" is not"));
        QVERIFY(!broken.setColorTheme(EGuiColorTheme::Light));
        QVERIFY(m_page.reloads.isEmpty());
        QCOMPARE(qApp->styleSheet(), styleSheet);
        FakeTheme::registerType();
    }

    void aColorIsReadFromTheMap_data()
    {
        const auto row = velmtest::columns<QVariant, unsigned long, QString>("entry", "color", "log");
        const QString wrongSize = "Invalid color format: wrong size or wrong first character ";
        row("red stands in the low byte", "#102030", 0x302010ul, "");
        row("letters of either case are digits", "#aBcDeF", 0xEFCDABul, "");
        row("a colour is as good as its name", QColor(1, 2, 3), 0x030201ul, "");
        row("no hash", "0102030", fallback, wrongSize + "0102030");
        row("one digit less", "#10203", fallback, wrongSize + "#10203");
        row("with alpha", "#ff102030", fallback, wrongSize + "#ff102030");
        row("nothing", "", fallback, wrongSize);
        row("six characters of more than six bytes", QString::fromUtf8("#1020é0"), fallback,
            "Invalid color format: unexpected array length 7");
        row("no hexadecimal digits", "#panels", fallback, "Invalid color format: not hexadecimal #panels");
    }
    void aColorIsReadFromTheMap()
    {
        QFETCH(QVariant, entry);
        QFETCH(unsigned long, color);
        QFETCH(QString, log);
        QtThemeColors colors = makeColors();
        map()->insert("panelBackground", entry);
        if (!log.isEmpty())
            QTest::ignoreMessage(QtDebugMsg, qPrintable(log));
        QCOMPARE(colors.guiColorRef(EGuiColor::PanelBackground), color);
    }

    void everyColorHasItsName()
    {
        QtThemeColors colors = makeColors();
        const QStringList names{"panelBackground",
                                "ribbonBackground",
                                "panelsetIconStripBaseColor",
                                "panelsetIconStripActiveColor",
                                "comboBackground",
                                "inputBg",
                                "buttonLightBg",
                                "menuItemHoverBg",
                                "accentSoft",
                                "accentMedium",
                                "accentHard",
                                "grey0",
                                "grey1",
                                "grey2",
                                "grey3",
                                "grey4",
                                "grey5",
                                "grey6",
                                "grey7",
                                "grey8",
                                "grey9",
                                "grey10",
                                "",
                                "brandAccentColor",
                                "yellow",
                                "darkYellow",
                                "red",
                                "green",
                                "blueButtonBg",
                                "blueHighlight"};
        for (int index = 0; index < names.size(); ++index) {
            if (index == 22)
                continue;
            map()->insert(names[index], QString("#0000%1").arg(index, 2, 16, QChar('0')));
            QCOMPARE(colors.guiColorRef(EGuiColor(index)), static_cast<unsigned long>(index) << 16);
        }
    }

    void whatTheThemeDoesNotKnowIsGrey()
    {
        QtThemeColors colors = makeColors();
        for (const int index : {30, -1}) {
            QTest::ignoreMessage(QtWarningMsg,
                                 qPrintable(QString("Color with index %1 does not exist in this theme.").arg(index)));
            QCOMPARE(colors.guiColorRef(EGuiColor(index)), fallback);
        }
        QTest::ignoreMessage(QtWarningMsg, "yellow does not exist in this theme.");
        QCOMPARE(colors.guiColorRef(EGuiColor::Yellow), fallback);

        m_engine->setProperty("colorMap", QVariant());
        QTest::ignoreMessage(QtWarningMsg, "Didn't find colorMap property of engine");
        QTest::ignoreMessage(QtWarningMsg, "Current theme is not found in engine.");
        QVERIFY(colors.guiColor(EGuiColor::Yellow) == wxColour(0xC0, 0xC0, 0xC0));

        m_engine->setProperty("colorMap", 17);
        QTest::ignoreMessage(QtWarningMsg, "Setting color theme failed");
        QTest::ignoreMessage(QtWarningMsg, "Current theme is not found in engine.");
        QCOMPARE(colors.guiColorRef(EGuiColor::Yellow), fallback);
        QTest::ignoreMessage(QtWarningMsg, "Setting color theme failed");
        QTest::ignoreMessage(QtWarningMsg, "Current color cannot be set because theme is not found in engine.");
        colors.setGuiColor(EGuiColor::Yellow, 0);
    }

    void aMissingMapIsNoFailureOfTheTheme()
    {
        FakeTheme::makeColorMap = [](int) { return QVariant(); };
        QTest::ignoreMessage(QtWarningMsg, "Didn't find colorMap property of engine");
        QtThemeColors colors = makeColors();
        QTest::ignoreMessage(QtWarningMsg, "Didn't find colorMap property of engine");
        QVERIFY(colors.setColorTheme(EGuiColorTheme::Light));
        QCOMPARE(m_page.reloads, QList<int>{0});
        QVERIFY(qApp->styleSheet().isEmpty());
    }

    void theBrandColorNeedsNoTheme()
    {
        FakeTheme::makeColorMap = [](int) { return QVariant(); };
        QTest::ignoreMessage(QtWarningMsg, "Didn't find colorMap property of engine");
        QtThemeColors colors = makeColors();
        QCOMPARE(colors.guiColorRef(EGuiColor::Brand), 0xFF9340ul);
        QVERIFY(colors.guiColor(EGuiColor::Brand) == wxColour(0x40, 0x93, 0xFF));
        QTest::ignoreMessage(QtWarningMsg, "Didn't find colorMap property of engine");
        QTest::ignoreMessage(QtWarningMsg, "Current color cannot be set because theme is not found in engine.");
        colors.setGuiColor(EGuiColor::Brand, 0x123456);
        QCOMPARE(colors.guiColorRef(EGuiColor::Brand), 0x123456ul);
    }

    void aColorThatIsSetIsWrittenWithoutPadding()
    {
        QtThemeColors colors = makeColors();
        colors.setGuiColor(EGuiColor::Yellow, 0x1020F0);
        QCOMPARE(map()->value("yellow").toString(), QString("#f02010"));
        QCOMPARE(colors.guiColorRef(EGuiColor::Yellow), 0x1020F0ul);
        colors.setGuiColor(EGuiColor::PanelBackground, 0xFFFF00);
        QCOMPARE(map()->value("panelBackground").toString(), QString("#ffff"));
        QTest::ignoreMessage(QtDebugMsg, "Invalid color format: wrong size or wrong first character #ffff");
        QCOMPARE(colors.guiColorRef(EGuiColor::PanelBackground), fallback);
        // The custom colour goes to the map as well.
        colors.setGuiColor(EGuiColor::Brand, 0x1020F0);
        QCOMPARE(map()->value("obsolete_brandColor_placeholder").toString(), QString("#f02010"));
    }

    void anUnsetThemeComesFromTheConfigurationAtFirstUse()
    {
        const velmtest::TemporaryConfig store;
        FakeTheme::makeColorMap = [](int theme) {
            return theme == -1 ? QVariant()
                               : FakeTheme::colorMap({{"grey10", "#000000"}, {"grey3", "#333333"}, {"red", "#ff0000"}});
        };
        QTest::ignoreMessage(QtWarningMsg, "Didn't find colorMap property of engine");
        QtThemeColors colors = makeColors(EGuiColorTheme(-1));
        // Nothing is configured yet: each question tries again.
        QCOMPARE(colors.guiColorRef(EGuiColor::Brand), 0xFF9340ul);
        QCOMPARE(FakeTheme::themes, QList<int>{-1});
        ut::Config::writeLong(ut::ECfgGroup::Interface, L"COLORTHEME", 1);
        QCOMPARE(colors.guiColorRef(EGuiColor::Red), 0x0000FFul);
        QCOMPARE(colors.guiColorRef(EGuiColor::Red), 0x0000FFul);
        QCOMPARE(FakeTheme::themes, QList<int>({-1, 1}));
        QCOMPARE(m_page.reloads, QList<int>{0});
    }
};

QTEST_MAIN(TestQtThemeColors)
#include "tst_qtthemecolors.moc"
