#include <QCoreApplication>
#include <QTest>

#include "ut/environment.h"

static const OdString folderBeforeMain = ut::getExecutableFolder(false);

class tst_Environment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void variablesKeepAnyText()
    {
        QVERIFY(ut::getEnvironment(L"VELM_TEST_UNSET").isEmpty());
        ut::setEnvironment(L"VELM_TEST_SET", L"Größe 図");
        QVERIFY(ut::getEnvironment(L"VELM_TEST_SET") == OdString(L"Größe 図"));
        QCOMPARE(qgetenv("VELM_TEST_SET"), QByteArray("Gr\xc3\xb6\xc3\x9f"
                                                      "e \xe5\x9b\xb3"));
    }

    void executableFolder()
    {
        const QString expected = QCoreApplication::applicationDirPath();
        QCOMPARE(QString::fromStdWString(folderBeforeMain.wide()), expected);
        QCOMPARE(QString::fromStdWString(ut::getExecutableFolder(true).wide()), expected + u'/');
#ifndef Q_OS_WIN
        QVERIFY(ut::correctSlashes(L"a\\b/c\\") == OdString(L"a/b/c/"));
#endif
    }
};

QTEST_GUILESS_MAIN(tst_Environment)
#include "tst_environment.moc"
