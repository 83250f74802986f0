#include "velm/theme/refreshenginetheme.h"

#include "faketheme.h"
#include "od/oderror.h"
#include "velm/bridge/engine.h"

#include <QApplication>
#include <QTest>

using namespace velm;
using ut::EGuiColor;
using ut::EGuiColorTheme;

namespace {
/// A colour map whose conversion fails as the drawing database does.
struct ThrowingMap
{};
} // namespace

Q_DECLARE_METATYPE(ThrowingMap)

class TestRefreshEngineTheme : public QObject
{
    Q_OBJECT
    std::unique_ptr<QQmlEngine> m_engine;
    PluginImportLoader m_loader;

    void refresh(EGuiColorTheme theme) { refreshEngineTheme(m_engine, *qApp, m_loader, nullptr, theme); }

private Q_SLOTS:
    void initTestCase()
    {
        QMetaType::registerConverter<ThrowingMap, QSharedPointer<QQmlPropertyMap>>(
            [](const ThrowingMap&) -> QSharedPointer<QQmlPropertyMap> { throw OdError(L"The database is locked."); });
    }
    void init()
    {
        FakeTheme::registerType();
        FakeTheme::themes.clear();
        FakeTheme::makeColorMap = [](int theme) {
            return FakeTheme::colorMap(
                {{"grey10", "#eeeeee"}, {"grey3", "#333333"}, {"red", theme == 0 ? "#ff0000" : "#aa0000"}});
        };
        m_engine = std::make_unique<QQmlEngine>();
    }
    void cleanup() { resetEngine(m_engine); }

    void theHostsColorsFollowEveryChange()
    {
        refresh(EGuiColorTheme::Dark);
        QCOMPARE(ut::guiColorRef(EGuiColor::Red), 0x0000FFul);
        ut::ThemeColorManager::colors().setGuiColor(EGuiColor::Brand, 1);
        // The colour map that a theme finds is never the one before.
        bool foundMap = true;
        const auto make = FakeTheme::makeColorMap;
        FakeTheme::makeColorMap = [&](int theme) {
            foundMap = m_engine->property("colorMap").isValid();
            return make(theme);
        };
        refresh(EGuiColorTheme::Light);
        QVERIFY(!foundMap);
        QCOMPARE(ut::guiColorRef(EGuiColor::Red), 0x0000AAul);
        QCOMPARE(FakeTheme::themes, QList<int>({0, 1}));
        // A new extension: the custom colour is the initial one.
        QCOMPARE(ut::guiColorRef(EGuiColor::Brand), 0xFF9340ul);
        QVERIFY(ut::ThemeColorManager::setColorTheme(EGuiColorTheme::Dark));
        QCOMPARE(ut::guiColorRef(EGuiColor::Red), 0x0000FFul);
    }

    void aDatabaseErrorLeavesThePlaceholder()
    {
        refresh(EGuiColorTheme::Dark);
        FakeTheme::makeColorMap = [](int) { return QVariant::fromValue(ThrowingMap()); };
        QTest::ignoreMessage(QtCriticalMsg, "The database is locked.");
        refresh(EGuiColorTheme::Light);
        QVERIFY(!ut::ThemeColorManager::setColorTheme(EGuiColorTheme::Dark));
        QCOMPARE(FakeTheme::themes, QList<int>({0, 1}));
        QCOMPARE(ut::guiColorRef(EGuiColor::Red), ut::ThemeColorsBase().guiColorRef(EGuiColor::Red));
    }

    void theExtensionGoesBeforeTheEngine()
    {
        refresh(EGuiColorTheme::Dark);
        resetEngine(m_engine);
        QCOMPARE(ut::guiColorRef(EGuiColor::Red), ut::ThemeColorsBase().guiColorRef(EGuiColor::Red));
    }
};

QTEST_MAIN(TestRefreshEngineTheme)
#include "tst_refreshenginetheme.moc"
