#include "velm/filter/valuetypes.h"

#include "support/table.h"
#include "velm/filter/componenturlwithsettings.h"
#include "velm/filter/filtertagdata.h"

#include <QTest>

using namespace velm;
using filter::EDefaultValueType;

class TestValueTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void typesAreKnownByNameFromTheStart()
    {
        // Asking by type would make them known.
        for (const char* name : {"velm::ComponentUrlWithSettings", "velm::IColorModel*", "velm::ILineWeightModel*"})
            QVERIFY2(QMetaType::fromName(name).isValid(), name);
    }

    void eachKindHasItsKeyItsOperatorsAndItsEditor_data()
    {
        const auto row = velmtest::columns<int, int, QString>("number", "category", "editor");
        row("string", 0, 1, "StringValue.qml");
        row("stringMultiple", 1, 8, "StringMultipleValue.qml");
        row("real", 2, 2, "RealValue.qml");
        row("integer", 3, 2, "IntegerValue.qml");
        row("enum", 4, 4, "EnumValue.qml");
        row("enumMultiple", 5, 4, "EnumMultipleValue.qml");
        row("boolean", 6, 4, "BooleanValue.qml");
        row("lineWeight", 7, 4, "LineWeightValue.qml");
        row("color", 8, 4, "ColorValue.qml");
        row("transparency", 9, 2, "TransparencyValue.qml");
    }
    void eachKindHasItsKeyItsOperatorsAndItsEditor()
    {
        QFETCH(int, number);
        QFETCH(int, category);
        QFETCH(QString, editor);
        const QString key = QTest::currentDataTag();
        const auto type = static_cast<EDefaultValueType>(number);
        QCOMPARE(filter::getValueTypeName(type), key);
        QCOMPARE(filter::getDefaultValueType(key), std::optional(type));
        QVERIFY(!filter::getDefaultValueType(key.toUpper()));
        QVERIFY(!filter::getDefaultValueType(key + ' '));
        QCOMPARE(int(filter::getOperatorCategoryType(type)), category);
        QCOMPARE(filter::defaultComponentUrl(key),
                 QUrl("qrc:/qt/qml/Tandolin/API/Controls/Private/simplefilter/valuecomponents/" + editor));
    }

    void anUnknownKindIsAChoiceWithoutAKey()
    {
        for (const int number : {-1, 10, INT_MAX}) {
            QCOMPARE(filter::getValueTypeName(static_cast<EDefaultValueType>(number)), QString());
            QCOMPARE(filter::getOperatorCategoryType(static_cast<EDefaultValueType>(number)),
                     FilterOperatorsModel::Enum);
        }
        QVERIFY(!filter::getDefaultValueType(QString()));
        QVERIFY(filter::defaultComponentUrl("host's own").path().endsWith("/valuecomponents/Host's ownValue.qml"));
        QVERIFY(filter::defaultComponentUrl(QString()).path().endsWith("/valuecomponents/Value.qml"));
    }

    void tagsAreEqualInAllThatTheyHold()
    {
        const FilterTagData none;
        QCOMPARE(none.propertyIndex, -1);
        QCOMPARE(none.operation, 0);
        QVERIFY(!none.value.isValid());
        QVERIFY(none == FilterTagData());
        const FilterTagData tag{1, 2, 3.0};
        QVERIFY(tag == FilterTagData(tag));
        QVERIFY((tag != FilterTagData{0, 2, 3.0}));
        QVERIFY((tag != FilterTagData{1, 3, 3.0}));
        QVERIFY((tag != FilterTagData{1, 2, 3.5}));
        QVERIFY((tag != FilterTagData{1, 2, QVariant()}));
        QVERIFY((FilterTagData{1, 2, QVariantList{1, 2}} != FilterTagData{1, 2, QVariantList{2, 1}}));
    }

    void aComponentWithoutAUrlIsEmpty()
    {
        QVERIFY(ComponentUrlWithSettings().isEmpty());
        QVERIFY(!ComponentUrlWithSettings().settings.isValid());
        QVERIFY(ComponentUrlWithSettings(QUrl(), 5).isEmpty());
        const ComponentUrlWithSettings component(QUrl("qrc:/a.qml"), 5);
        QVERIFY(!component.isEmpty());
        const QMetaObject& meta = ComponentUrlWithSettings::staticMetaObject;
        QCOMPARE(meta.property(meta.indexOfProperty("url")).readOnGadget(&component), QUrl("qrc:/a.qml"));
        QCOMPARE(meta.property(meta.indexOfProperty("settings")).readOnGadget(&component), QVariant(5));
    }
};

QTEST_GUILESS_MAIN(TestValueTypes)
#include "tst_valuetypes.moc"
