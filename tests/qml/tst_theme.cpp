#include "support/table.h"

#include <QColor>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QSharedPointer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

using ColorMap = QSharedPointer<QQmlPropertyMap>;

namespace {
double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// One engine with a page that shows some of the theme.
struct Page
{
    Page()
    {
        engine.addImportPath(QCoreApplication::applicationDirPath() + QStringLiteral("/imports"));
        QQmlComponent component(&engine);
        component.setData("import QtQuick\n"
                          "import Tandolin.API.Core.Themes\n"
                          "import Tandolin.API.Core.Themes.Engine\n"
                          "QtObject {\n"
                          "  property color raw: Theme.colors.panelBackground\n"
                          "  property color background: Colors.background\n"
                          "  property color text: Colors.text\n"
                          "  property color secondary: Colors.textSecondary\n"
                          "  property bool dark: Theme.dark\n"
                          "  property int theme: Theme.theme\n"
                          "  function set(theme: int) { Theme.setColorTheme(theme) }\n"
                          "  function role(name: string): color { return Colors[name] }\n"
                          "}",
                          QUrl());
        object.reset(component.create());
        if (!object)
            qWarning("%s", qPrintable(component.errorString()));
    }

    void setTheme(int theme) { QMetaObject::invokeMethod(object.get(), "set", Q_ARG(int, theme)); }
    QColor color(const char* name) const { return object->property(name).value<QColor>(); }
    QColor role(const QString& name) const
    {
        QColor result;
        QMetaObject::invokeMethod(object.get(), "role", Q_RETURN_ARG(QColor, result), Q_ARG(QString, name));
        return result;
    }
    ColorMap map() const { return engine.property("colorMap").value<ColorMap>(); }
    QColor mapColor(const QString& name) const { return QColor(map()->value(name).toString()); }

    QQmlEngine engine;
    std::unique_ptr<QObject> object;
};
} // namespace

class TestTheme : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pagesHaveColoursBeforeAThemeIsSet()
    {
        const Page page;
        QVERIFY(!page.engine.property("colorMap").isValid());
        QVERIFY(page.color("background").lightnessF() < 0.5);
        QVERIFY(contrast(page.color("background"), page.color("text")) > 4.5);
    }

    void theMapHoldsEveryInterfaceColour()
    {
        QStringList names =
            QStringLiteral("panelBackground ribbonBackground panelsetIconStripBaseColor "
                           "panelsetIconStripActiveColor comboBackground inputBg buttonLightBg "
                           "menuItemHoverBg accentSoft accentMedium accentHard "
                           "obsolete_brandColor_placeholder brandAccentColor yellow darkYellow red green "
                           "blueButtonBg blueHighlight")
                .split(QLatin1Char(' '));
        for (int i = 0; i <= 10; ++i)
            names << QStringLiteral("grey%1").arg(i);
        names.sort();
        Page page;
        for (const int theme : {0, 1}) {
            page.setTheme(theme);
            QCOMPARE(QString::fromLatin1(page.engine.property("colorMap").typeName()),
                     QStringLiteral("QSharedPointer<QQmlPropertyMap>"));
            QVERIFY(page.map());
            QStringList keys = page.map()->keys();
            keys.sort();
            QCOMPARE(keys, names);
            for (const QString& name : names) {
                const QVariant value = page.map()->value(name);
                QCOMPARE(value.typeId(), int(QMetaType::QString));
                QVERIFY2(QRegularExpression(QStringLiteral("^#[0-9a-f]{6}$")).match(value.toString()).hasMatch(),
                         qPrintable(name + value.toString()));
            }
        }
    }

    void aThemeRefillsTheMapOfTheEngine()
    {
        Page page;
        page.setTheme(0);
        const ColorMap map = page.map();
        map->insert(QStringLiteral("panelBackground"), QStringLiteral("#123456"));
        page.setTheme(1);
        QCOMPARE(page.map(), map);
        QVERIFY(page.color("raw").lightnessF() > 0.5);
        QCOMPARE(page.color("raw"), page.mapColor(QStringLiteral("panelBackground")));
        QCOMPARE(page.color("background"), page.color("raw"));
        QCOMPARE(page.object->property("dark"), QVariant(false));
        QCOMPARE(page.object->property("theme"), QVariant(1));
    }

    void anInvalidMapIsReplacedAndPagesFollow()
    {
        Page page;
        page.setTheme(0);
        const QWeakPointer<QQmlPropertyMap> former = page.map();
        page.engine.setProperty("colorMap", QVariant());
        page.setTheme(1);
        QVERIFY(page.map());
        QVERIFY(former.isNull());
        QVERIFY(page.color("background").lightnessF() > 0.5);
        page.map()->insert(QStringLiteral("grey10"), QStringLiteral("#123456"));
        QCOMPARE(page.color("text"), QColor(0x12, 0x34, 0x56));
        // Once more to the same theme: the map is new, and the host's colour is gone.
        page.engine.setProperty("colorMap", QVariant());
        page.setTheme(1);
        QCOMPARE(page.color("text"), page.mapColor(QStringLiteral("grey10")));
        QVERIFY(page.color("text") != QColor(0x12, 0x34, 0x56));
    }

    void pagesFollowAColourThatTheHostInserts()
    {
        Page page;
        page.setTheme(0);
        const QColor secondary = page.color("secondary");
        page.map()->insert(QStringLiteral("grey10"), QStringLiteral("#a0b0c0"));
        QCOMPARE(page.color("text"), QColor(0xa0, 0xb0, 0xc0));
        QCOMPARE(page.color("secondary"), secondary);
    }

    void aBadlyFormedColourIsGreyAsForTheHost()
    {
        Page page;
        page.setTheme(0);
        page.map()->insert(QStringLiteral("panelBackground"), QStringLiteral("#fffff"));
        QCOMPARE(page.color("background"), QColor(0xc0, 0xc0, 0xc0));
    }

    void anUnknownThemeIsTheDarkOne()
    {
        Page page;
        page.setTheme(1);
        QTest::ignoreMessage(QtWarningMsg, "There is no colour theme 7; the dark theme is used.");
        page.setTheme(7);
        QCOMPARE(page.object->property("theme"), QVariant(0));
        QVERIFY(page.color("background").lightnessF() < 0.5);
    }

    void textsStandOutFromTheirBackgrounds_data()
    {
        velmtest::columns<int, QString, QStringList, double>("theme", "front", "backs", "ratio");
        const QStringList texts = {"background", "ribbon", "popup",       "input",         "combo", "tabStrip",
                                   "tabActive",  "button", "buttonHover", "buttonPressed", "hover", "selection"};
        const QStringList panels = {"background", "popup", "input"};
        for (const int theme : {0, 1}) {
            const char* name = theme == 0 ? "dark" : "light";
            QTest::addRow("%s: text", name) << theme << "text" << texts << 4.5;
            QTest::addRow("%s: secondary text", name)
                << theme << "textSecondary" << QStringList{"background", "ribbon", "popup", "input", "tabStrip"} << 4.5;
            QTest::addRow("%s: text of a primary button", name)
                << theme << "primaryText" << QStringList{"primary", "primaryHover", "primaryPressed"} << 4.5;
            QTest::addRow("%s: link", name) << theme << "accentStrong" << panels << 4.5;
            QTest::addRow("%s: warning", name) << theme << "warning" << panels << 4.5;
            QTest::addRow("%s: error", name) << theme << "error" << panels << 4.5;
            QTest::addRow("%s: success", name) << theme << "success" << panels << 4.5;
            QTest::addRow("%s: outline", name) << theme << "outline" << panels << 3.0;
            QTest::addRow("%s: focus ring", name) << theme << "focus" << panels + QStringList{"button"} << 3.0;
            QTest::addRow("%s: mark on the accent", name) << theme << "accentText" << QStringList{"accent"} << 4.5;
            QTest::addRow("%s: disabled text is still there", name) << theme << "textDisabled" << panels << 2.5;
        }
    }
    void textsStandOutFromTheirBackgrounds()
    {
        QFETCH(int, theme);
        QFETCH(QString, front);
        QFETCH(QStringList, backs);
        QFETCH(double, ratio);
        Page page;
        page.setTheme(theme);
        for (const QString& back : backs) {
            const double found = contrast(page.role(front), page.role(back));
            QVERIFY2(found >= ratio, qPrintable(QStringLiteral("%1 on %2: %3").arg(front, back).arg(found)));
        }
    }

    void greysRunFromBackgroundToText()
    {
        Page page;
        for (const int theme : {0, 1}) {
            page.setTheme(theme);
            for (int i = 1; i <= 10; ++i) {
                const double step = luminance(page.mapColor(QStringLiteral("grey%1").arg(i))) -
                                    luminance(page.mapColor(QStringLiteral("grey%1").arg(i - 1)));
                QVERIFY2(theme == 0 ? step > 0 : step < 0,
                         qPrintable(QStringLiteral("theme %1, grey%2").arg(theme).arg(i)));
            }
            // The application's style sheet sets the one on the other.
            QVERIFY(contrast(page.mapColor(QStringLiteral("grey10")), page.mapColor(QStringLiteral("grey3"))) >= 7.0);
        }
    }
};

QTEST_MAIN(TestTheme)

#include "tst_theme.moc"
