#include "host/pageloader.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace workbench;

/// What is told of a page that can't be loaded.
class PageLoaderTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theLinesAroundAnErrorAreShown_data();
    void theLinesAroundAnErrorAreShown();
    void whatIsNoFileHasNoLines();
};

void PageLoaderTest::theLinesAroundAnErrorAreShown_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("source");
    QTest::newRow("in the middle") << "import QtQuick\nItem {\n    id: äöü\n    nonsense: 1\n    x: 1\n    y: 1\n}\n"
                                   << " 2  Item {\n 3      id: äöü\n>4      nonsense: 1\n 5      x: 1\n 6      y: 1";
    QTest::newRow("in the first line") << "Item {}\n"
                                       << ">1  Item {}\n 2  ";
    QTest::newRow("among numbers of two digits") << "import QtQuick\n\n\n\n\n\n\nItem {\n    nonsense: 1\n}"
                                                 << "  7  \n  8  Item {\n> 9      nonsense: 1\n 10  }";
    QTest::newRow("none") << "import QtQuick\nItem {}\n"
                          << "";
}

void PageLoaderTest::theLinesAroundAnErrorAreShown()
{
    QFETCH(const QString, page);
    QFETCH(const QString, source);
    const QTemporaryDir folder;
    QFile file(folder.filePath("a page.qml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(page.toUtf8());
    file.close();
    if (!source.isEmpty())
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("."));
    QQmlEngine engine;
    const LoadedPage loaded = loadPage(engine, QUrl::fromLocalFile(file.fileName()), {});
    QCOMPARE(loaded.source, source);
    QCOMPARE(loaded.root == nullptr, !source.isEmpty());
}

void PageLoaderTest::whatIsNoFileHasNoLines()
{
    QQmlEngine engine;
    for (const char* url : {"file:///nowhere/Page.qml", "qrc:/nowhere/Page.qml"}) {
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("."));
        const LoadedPage loaded = loadPage(engine, QUrl(url), {});
        QVERIFY(!loaded.root && !loaded.error.isEmpty());
        QCOMPARE(loaded.source, QString());
    }
}

QTEST_MAIN(PageLoaderTest)

#include "tst_pageloader.moc"
