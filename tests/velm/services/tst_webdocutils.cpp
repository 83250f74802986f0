#include "velm/services/webdocutils.h"

#include "support/scopes.h"

#include <QTest>

using namespace velm;

class TestWebDocUtils : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void thePagesAreTheHosts()
    {
        QStringList opened;
        ExternalFunctions functions;
        functions.openWebDoc = [&](const QString& key) { opened += key; };
        functions.getWebDocUrl = [](const QString& key) { return "https://docs.example/" + key; };
        const velmtest::ScopedExternalFunctions scope(functions);
        QObject parent;
        WebDocUtils docs(&parent);
        QCOMPARE(docs.parent(), &parent);
        // As a page calls them.
        QVERIFY(QMetaObject::invokeMethod(&docs, "open", Q_ARG(QString, "layers")));
        QCOMPARE(opened, QStringList({"layers"}));
        QString url;
        QVERIFY(QMetaObject::invokeMethod(&docs, "getUrl", Q_RETURN_ARG(QString, url), Q_ARG(QString, "layers")));
        QCOMPARE(url, QString("https://docs.example/layers"));
    }

    void withoutAHostNothingHappens()
    {
        const WebDocUtils docs(nullptr);
        docs.open("layers");
        QVERIFY(docs.getUrl("layers").isNull());
    }
};

QTEST_APPLESS_MAIN(TestWebDocUtils)

#include "tst_webdocutils.moc"
