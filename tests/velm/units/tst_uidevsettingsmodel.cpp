#include "velm/units/uidevsettingsmodel.h"

#include "support/members.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QJSEngine>
#include <QTest>

using namespace velm;

namespace {
constexpr int nameRole = 256;
constexpr int currentRole = 259;

QVariantList setting(const QVariant& key, const QVariant& name, const QVariant& values = {})
{
    QVariantList result{key, name};
    if (values.isValid())
        result += values;
    return result;
}

/// One list among others, not its elements.
QVariant list(const QVariantList& fields)
{
    return QVariant(fields);
}

/// "Grid: on", "Mode: 1 of a/b", row by row.
QString rows(const UIDevSettingsModel& settings)
{
    const QAbstractItemModel& model = *settings.getModel();
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        const QVariant current = index.data(currentRole);
        const bool isChoice = index.data(257).toBool();
        const QString name = index.data(nameRole).toString();
        if (current.typeId() != (isChoice ? QMetaType::Int : QMetaType::Bool))
            result += name + ": " + current.typeName();
        else if (isChoice)
            result += QString("%1: %2 of %3").arg(name, current.toString(), index.data(258).toStringList().join('/'));
        else
            result += name + ": " + (current.toBool() ? "on" : "off");
    }
    return result.join(", ");
}

bool set(const UIDevSettingsModel& settings, int row, const QVariant& value)
{
    QAbstractItemModel& model = *settings.getModel();
    return model.setData(model.index(row, 0), value, currentRole);
}
} // namespace

class TestUIDevSettingsModel : public QObject
{
    Q_OBJECT
    // The values are kept for the process: each test has a tag of its own.
    QString tag() const { return QTest::currentTestFunction(); }

    const QVariantList m_gridAndMode{list(setting("grid", "Grid")),
                                     list(setting("mode", "Mode", QStringList{"a", "b"}))};

private Q_SLOTS:
    void itsMembersComeInTheOrderOfTheContract()
    {
        QCOMPARE(velmtest::members(UIDevSettingsModel::staticMetaObject),
                 QString("signal: dictChanged() expandedChanged() method: load(QString,QVariantList) "
                         "property: expanded= model! dict"));
        const QHash<int, QByteArray> roles = UIDevSettingsModel(nullptr).getModel()->roleNames();
        QCOMPARE(QByteArrayList({roles[256], roles[257], roles[258], roles[259]}),
                 QByteArrayList({"itemName", "itemIsEnum", "itemValues", "itemCurrentValue"}));
    }

    void aBadDeclarationChangesNothing()
    {
        UIDevSettingsModel model;
        const QAbstractItemModelTester tester(model.getModel(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.load(tag(), m_gridAndMode);
        velmtest::SignalLog log(model);
        velmtest::SignalLog rowLog(*model.getModel());
        const QVariant good = list(setting("k", "Good"));
        model.load("", {good});
        for (const QVariant& bad : {QVariant(), QVariant("s"), QVariant(4), list({"snap"}), list({}),
                                    list(setting(list({1}), "Snap")), list(setting("snap", QVariantMap()))})
            model.load("t", {good, bad, good});
        QCOMPARE(log.take() + rowLog.take(), QString());
        QCOMPARE(rows(model), QString("Grid: off, Mode: 0 of a/b"));
        // The tag, too, is the former one.
        QVERIFY(set(model, 1, 1));
        UIDevSettingsModel other;
        other.load(tag(), m_gridAndMode);
        QCOMPARE(other.index("mode"), 1);
        // And what can be read is good enough.
        model.load("t", {QStringList({"a", "Strings"}), list({1, 2.5, 3}), list(setting("c", "One", "text")),
                         list({"d", "None", QStringList(), "more"}), list(setting("e", "Mixed", list({1, "x"})))});
        QCOMPARE(rows(model), QString("Strings: off, 2.5: off, One: 0 of text, None: off, Mixed: 0 of 1/x"));
        QCOMPARE(log.take(), QString("dictChanged dictChanged"));
    }

    void aChangeIsKeptUnderItsTag()
    {
        UIDevSettingsModel model;
        const QAbstractItemModelTester tester(model.getModel(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.load(tag(), m_gridAndMode);
        UIDevSettingsModel neighbour;
        neighbour.load(tag(), m_gridAndMode);
        QStringList order;
        connect(model.getModel(), &QAbstractItemModel::dataChanged,
                [&](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
                    QCOMPARE(first, last);
                    QCOMPARE(roles, QList<int>{currentRole});
                    order += QString("dataChanged %1").arg(first.row());
                });
        connect(&model, &UIDevSettingsModel::dictChanged,
                [&] { order += QString("dictChanged %1 %2").arg(model.index("grid")).arg(model.index("mode")); });
        QVERIFY(set(model, 0, 7));
        QVERIFY(set(model, 1, "12"));
        QVERIFY(set(model, 1, 12)); // the same again is told, too
        QCOMPARE(order, QStringList({"dataChanged 0", "dictChanged 1 0", "dataChanged 1", "dictChanged 1 12",
                                     "dataChanged 1", "dictChanged 1 12"}));
        QCOMPARE(model.getDict(), QVariantMap({{"grid", true}, {"mode", 12}}));
        QCOMPARE(model.getDict()["grid"].typeId(), int(QMetaType::Bool));
        QCOMPARE(model.getDict()["mode"].typeId(), int(QMetaType::Int));
        QVERIFY(model.enabled("mode") && !model.enabled("Mode") && model.index("none") == 0);

        QCOMPARE(rows(neighbour), QString("Grid: off, Mode: 0 of a/b"));
        neighbour.load(tag(), m_gridAndMode);
        QCOMPARE(rows(neighbour), QString("Grid: on, Mode: 12 of a/b"));
        neighbour.load(tag() + '2', m_gridAndMode);
        QCOMPARE(rows(neighbour), QString("Grid: off, Mode: 0 of a/b"));
        // The number is kept for the key, whatever its setting is now.
        model.load(tag(), {list(setting("mode", "Switch"))});
        QCOMPARE(rows(model), QString("Switch: on"));
    }

    void whatIsNoCurrentValueIsRefused()
    {
        UIDevSettingsModel model;
        model.load(tag(), m_gridAndMode);
        velmtest::SignalLog log(model);
        QAbstractItemModel& list = *model.getModel();
        const QModelIndex last = list.index(1, 0);
        QVERIFY(!list.setData(QModelIndex(), 1, currentRole));
        QVERIFY(!list.setData(last, 1, Qt::EditRole));
        QVERIFY(!list.setData(last, "x", nameRole));
        model.load(tag(), {});
        QCOMPARE(log.take(), QString("dictChanged"));
        QVERIFY(!list.setData(last, 1, currentRole)); // its row has gone
        QVERIFY(!last.data(currentRole).isValid());
        QCOMPARE(log.take(), QString());
    }

    void ofTheSameKeyTwiceTheDictionaryHasTheLastAndTheRestTheFirst()
    {
        UIDevSettingsModel model(tag(), {{"k", "One", {}, 0}, {"k", "Two", {"a", "b"}, 1}});
        QCOMPARE(model.getDict(), QVariantMap({{"k", 1}}));
        QVERIFY(!model.enabled("k"));
        QCOMPARE(model.index("k"), 0);
        QVERIFY(set(model, 1, 3));
        model.load(tag(), {list(setting("k", "One")), list(setting("k", "Two"))});
        QCOMPARE(rows(model), QString("One: on, Two: on"));
    }

    void givenRecordsIgnoreWhatIsKeptUntilTheyAreLoaded()
    {
        {
            UIDevSettingsModel model;
            model.load(tag(), m_gridAndMode);
            QVERIFY(set(model, 1, 1));
        }
        UIDevSettingsModel model(tag(), {{"grid", "Grid", {}, 5}, {"mode", "Mode", {"a"}, 0}});
        QVERIFY(!model.parent());
        QCOMPARE(rows(model), QString("Grid: on, Mode: 0 of a"));
        QCOMPARE(model.index("grid"), 5);
        velmtest::SignalLog log(model);
        QVERIFY(set(model, 0, false));
        QCOMPARE(log.take(), QString("dictChanged"));
        model.load(tag(), m_gridAndMode);
        QCOMPARE(rows(model), QString("Grid: off, Mode: 1 of a/b"));
        model.setExpanded(false);
        model.setExpanded(true);
        model.setExpanded(true);
        QCOMPARE(log.take(), QString("dictChanged expandedChanged"));
    }

    void aScriptDeclaresByNestedArrays()
    {
        UIDevSettingsModel model;
        QJSEngine engine;
        QJSEngine::setObjectOwnership(&model, QJSEngine::CppOwnership);
        engine.globalObject().setProperty("settings", engine.newQObject(&model));
        const auto run = [&](const QString& script) { return engine.evaluate(script).toString(); };
        QCOMPARE(run("settings.load('script', [['grid', 'Grid'], ['mode', 'Mode', ['a', 'b']], ['x', 'X', []], "
                     "['y', 'Y', undefined]])"),
                 QString("undefined"));
        QCOMPARE(rows(model), QString("Grid: off, Mode: 0 of a/b, X: off, Y: off"));
        QVERIFY(set(model, 1, 1));
        QVERIFY(set(model, 0, true));
        QCOMPARE(run("JSON.stringify(settings.dict)"), QString(R"({"grid":true,"mode":1,"x":false,"y":false})"));
        run("settings.load('script', [['grid', 'Grid'], ['mode']])");
        run("settings.load('script', [['grid', 'Grid'], 7])");
        QCOMPARE(model.getModel()->rowCount(), 4);
        run("settings.load('script', [])");
        QCOMPARE(model.getModel()->rowCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestUIDevSettingsModel)
#include "tst_uidevsettingsmodel.moc"
