#include "velm/units/settings.h"

#include "support/fakehost.h"
#include "support/scopes.h"
#include "support/signallog.h"

#include <QMetaProperty>
#include <QTest>

using namespace velm;

class TestSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Settings::destroyInstance(); }

    void everySetterTellsItsOneSignalOnce()
    {
        Settings& settings = *Settings::instance();
        velmtest::SignalLog log(settings);
        settings.setTooltips(true);
        settings.setTooltipDelay(500);
        settings.setLinearUnitPrecision(0);
        settings.setAngularUnitPrecision(0);
        settings.setLinearUnitString("");
        settings.setAngularUnitType(-1);
        settings.setDoc(nullptr);
        QCOMPARE(log.take(), QString());
        for (int round = 0; round < 2; ++round) {
            settings.setTooltips(false);
            settings.setTooltipDelay(0);
            settings.setLinearUnitPrecision(4);
            settings.setAngularUnitPrecision(2);
            settings.setLinearUnitString("mm");
        }
        QCOMPARE(log.take(), QString("tooltipsChanged tooltipDelayChanged linearUnitPrecisionChanged "
                                     "angularUnitPrecisionChanged linearUnitStringChanged"));
        QCOMPARE(settings.property("tooltips").toBool(), false);
        QCOMPARE(settings.property("tooltipDelay").toInt(), 0);
        QCOMPARE(settings.property("linearUnitPrecision").toInt(), 4);
        QCOMPARE(settings.property("angularUnitPrecision").toInt(), 2);
        QCOMPARE(settings.property("linearUnitString").toString(), QString("mm"));
    }

    void theAngularTextFollowsTheType()
    {
        Settings& settings = *Settings::instance();
        velmtest::SignalLog log(settings);
        const auto textAfter = [&](int type) {
            settings.setAngularUnitType(type);
            return settings.getAngularUnitString() + (log.take() == "angularUnitStringChanged" ? " told" : " untold");
        };
        QCOMPARE(settings.getAngularUnitString(), QString());
        QCOMPARE(textAfter(0), QString(QChar(0xB0)) + " told");
        QCOMPARE(textAfter(7), QString(QChar(0xB0)) + " told");
        QCOMPARE(settings.getAngularUnitType(), 7);
        QCOMPARE(textAfter(7), QString(QChar(0xB0)) + " untold");
        QCOMPARE(textAfter(2), QString("g told"));
        QCOMPARE(textAfter(3), QString("r told"));
        QCOMPARE(textAfter(1), QString(" told"));
        QCOMPARE(textAfter(4), QString(" told"));
        QCOMPARE(textAfter(-1), QString(" told"));
    }

    void aNewSingletonStartsFromTheInitialValues()
    {
        Settings::instance()->setLinearUnitString("mm");
        Settings::instance()->setAngularUnitType(0);
        Settings::destroyInstance();
        const Settings& settings = *Settings::instance();
        QVERIFY(settings.tooltips());
        QCOMPARE(settings.tooltipDelay(), 500);
        QCOMPARE(settings.getAngularUnitType(), -1);
        QCOMPARE(settings.getLinearUnitString() + settings.getAngularUnitString(), QString());
    }

    void anglesAreTheHostFormattersAlone()
    {
        Settings& settings = *Settings::instance();
        QVERIFY(settings.formatAngle(45.0).isEmpty());
        QCOMPARE(settings.parseAngle("45"), 0.0);

        velmtest::FakeUnitFormatter formatter;
        ExternalFunctions functions;
        functions.getUnitFormatter = formatter.getter();
        const velmtest::ScopedExternalFunctions scope(functions);
        formatter.text = L"45°";
        QCOMPARE(settings.formatAngle(45.0), QString::fromUtf8("45°"));
        formatter.parsed = std::numeric_limits<double>::infinity();
        QCOMPARE(settings.parseAngle("\t45g "), std::numeric_limits<double>::infinity());
        formatter.parsed.reset();
        QCOMPARE(settings.parseAngle("x"), 0.0);
        QCOMPARE(formatter.log, QStringList({"got for 45", "formatAngular null 0", "got for 0",
                                             "parseAngular 0 '45g' null 0", "got for 0", "parseAngular 0 'x' null 0"}));
    }

    void pagesFindEverythingInItsOrder()
    {
        const QMetaObject& metaObject = Settings::staticMetaObject;
        QStringList methods;
        for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index)
            methods += QString::fromLatin1(metaObject.method(index).methodSignature());
        QCOMPARE(methods, QStringList({"tooltipsChanged()", "tooltipDelayChanged()", "linearUnitPrecisionChanged()",
                                       "angularUnitPrecisionChanged()", "linearUnitStringChanged()",
                                       "angularUnitStringChanged()", "getAngularUnitType()", "formatAngle(double)",
                                       "parseAngle(QString)"}));
        QStringList properties;
        for (int index = metaObject.propertyOffset(); index < metaObject.propertyCount(); ++index) {
            const QMetaProperty property = metaObject.property(index);
            QVERIFY(!property.isWritable());
            QCOMPARE(property.notifySignal().name(), QByteArray(property.name()) + "Changed");
            properties += property.name();
        }
        QCOMPARE(properties, QStringList({"tooltips", "tooltipDelay", "linearUnitString", "angularUnitString",
                                          "linearUnitPrecision", "angularUnitPrecision"}));
    }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
