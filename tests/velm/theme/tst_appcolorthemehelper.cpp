#include "velm/theme/appcolorthemehelper.h"

#include "support/scopes.h"
#include "ut/config.h"
#include "ut/themecolors.h"

#include <QApplication>
#include <QTest>

using namespace velm;

class TestAppColorThemeHelper : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aProgramWithoutAnApplicationGetsTheConfiguredColors()
    {
        const velmtest::TemporaryConfig store;
        const unsigned long placeholder = ut::guiColorRef(ut::EGuiColor::PanelBackground);
        unsigned long configured[2];
        for (const int theme : {0, 1}) {
            ut::Config::writeLong(ut::ECfgGroup::Interface, L"COLORTHEME", theme);
            AppColorThemeHelper helper;
            QVERIFY(qApp);
            helper.setUp();
            configured[theme] = ut::guiColorRef(ut::EGuiColor::PanelBackground);
            QVERIFY(configured[theme] != 0xC0C0C0);
            // A second engine finds the modules as well.
            helper.setUp();
            QCOMPARE(ut::guiColorRef(ut::EGuiColor::PanelBackground), configured[theme]);
        }
        QVERIFY(configured[0] != configured[1]);
        QVERIFY(!qApp);
        // The colours went with the engine.
        QCOMPARE(ut::guiColorRef(ut::EGuiColor::PanelBackground), placeholder);
    }
};

QTEST_APPLESS_MAIN(TestAppColorThemeHelper)
#include "tst_appcolorthemehelper.moc"
