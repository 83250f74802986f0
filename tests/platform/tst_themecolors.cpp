#include <QTemporaryDir>
#include <QTest>

#include "support/table.h"
#include "ut/config.h"
#include "ut/environment.h"
#include "ut/themecolors.h"

using namespace ut;

/// Answers with its own number and counts those that live.
class Extension : public IThemeColors
{
public:
    explicit Extension(unsigned long number) : m_number(number) { ++alive; }
    ~Extension() override
    {
        --alive;
        answerAtDestruction = ut::guiColorRef(EGuiColor::Red);
    }
    unsigned long guiColorRef(EGuiColor) override { return m_number; }
    bool setColorTheme(EGuiColorTheme theme) override { return theme == EGuiColorTheme::Light; }
    void setGuiColor(EGuiColor, unsigned long value) override { m_number = value; }

    static inline int alive = 0;
    static inline unsigned long answerAtDestruction = 0;

private:
    unsigned long m_number;
};

class tst_ThemeColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void managerAsksTheExtension()
    {
        ThemeColorManager::colors().setGuiColor(EGuiColor::Red, 5);
        QCOMPARE(guiColorRef(EGuiColor::Red), 0xC0C0C0ul);
        QVERIFY(!ThemeColorManager::setColorTheme(EGuiColorTheme::Light));

        QVERIFY(!ThemeColorManager::setExtension(std::make_unique<Extension>(1)));
        QVERIFY(!ThemeColorManager::setExtension(nullptr));
        QCOMPARE(guiColorRef(EGuiColor::Red), 1ul);
        QVERIFY(ThemeColorManager::setColorTheme(EGuiColorTheme::Light));

        QVERIFY(!ThemeColorManager::setExtension(std::make_unique<Extension>(2)));
        QCOMPARE(Extension::alive, 1);
        QCOMPARE(Extension::answerAtDestruction, 2ul); // the new one stands in place already
        ThemeColorManager::releaseExtension();
        QCOMPARE(Extension::alive, 0);
        QCOMPARE(Extension::answerAtDestruction, 0xC0C0C0ul);
        ThemeColorManager::releaseExtension();
    }

    void configuredTheme_data()
    {
        const auto row = velmtest::columns<QString, int>("value", "theme");
        row("nothing stored is dark", QString(), int(EGuiColorTheme::Dark));
        row("1 is light", "1", int(EGuiColorTheme::Light));
        row("0 is dark", "0", int(EGuiColorTheme::Dark));
        row("2 is no theme", "2", int(EGuiColorTheme::Dark));
        row("a word is no theme", "true", int(EGuiColorTheme::Dark));
    }
    void configuredTheme()
    {
        QFETCH(QString, value);
        QFETCH(int, theme);
        const QTemporaryDir folder;
        setEnvironment(L"TANDOLIN_CONFIG", folder.filePath(QStringLiteral("settings.ini")).toStdWString());
        Config::reopen();
        if (!value.isNull())
            Config::writeString(ECfgGroup::Interface, L"COLORTHEME", value.toStdWString());
        QCOMPARE(int(configColorTheme()), theme);
    }
};

QTEST_GUILESS_MAIN(tst_ThemeColors)
#include "tst_themecolors.moc"
