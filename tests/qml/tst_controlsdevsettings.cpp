#include "shownpage.h"
#include "velm/units/uidevsettingsmodel.h"

#include <QAbstractItemModelTester>
#include <QQmlContext>
#include <QQmlExpression>
#include <QSignalSpy>

using velm::UIDevSettingsModel;
using velmtest::PageEngine;
using velmtest::Shown;

/// Developer settings as a page declares and a user sets them.
class TestControlsDevSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatAPageDeclaresIsSetByMouseAndKeyboard()
    {
        PageEngine engine;
        Shown shown(page(engine, "set"));
        QVERIFY(model(shown));
        const QAbstractItemModelTester tester(model(shown)->getModel(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(shown.page()->property("count").toInt(), 3);
        QCOMPARE(editor(shown, 1)->property("count").toInt(), 3);
        QCOMPARE(editor(shown, 1)->property("displayText").toString(), QStringLiteral("one"));

        shown.click(editor(shown, 0));
        QVERIFY(model(shown)->enabled(QStringLiteral("a")));
        shown.press(Qt::Key_Space);
        QVERIFY(!model(shown)->enabled(QStringLiteral("a")));
        shown.press(Qt::Key_Tab);
        shown.click(row(shown, 0)->findChild<QQuickItem*>(QStringLiteral("label")));
        QVERIFY(model(shown)->enabled(QStringLiteral("a")));
        QVERIFY(editor(shown, 0)->property("checked").toBool());
        shown.press(Qt::Key_Tab);
        QVERIFY(editor(shown, 1)->hasActiveFocus());
        shown.press(Qt::Key_End);
        shown.press(Qt::Key_Up);
        const QVariantMap read = shown.page()->property("read").toMap();
        QCOMPARE(read, (QVariantMap{{"a", true}, {"b", 1}, {"c", false}}));
        QCOMPARE(read["b"].typeId(), int(QMetaType::Int));
        // A value from elsewhere is shown, also one that is no choice.
        QAbstractItemModel* list = model(shown)->getModel();
        QVERIFY(list->setData(list->index(1, 0), 7, Qt::UserRole + 3));
        QCOMPARE(editor(shown, 1)->property("displayText").toString(), QString());
        QVERIFY(list->setData(list->index(1, 0), 2, Qt::UserRole + 3));
        QCOMPARE(editor(shown, 1)->property("displayText").toString(), QStringLiteral("three"));

        // Another page of the tag begins with what was set here, one of another tag doesn't.
        Shown same(page(engine, "set"));
        QVERIFY(editor(same, 0)->property("checked").toBool());
        QCOMPARE(editor(same, 1)->property("currentIndex").toInt(), 2);
        Shown other(page(engine, "other"));
        QVERIFY(!editor(other, 0)->property("checked").toBool());
    }

    void aBadDeclarationFromAPageChangesNothing()
    {
        PageEngine engine;
        Shown shown(page(engine, "bad"));
        QSignalSpy changed(model(shown), &UIDevSettingsModel::dictChanged);
        const auto declare = [&](const char* script) {
            QQmlExpression expression(qmlContext(shown.page()), shown.page(), QString::fromLatin1(script));
            expression.evaluate();
            return expression.hasError() ? expression.error().toString() : QString();
        };
        for (const char* bad : {"declare('bad', [['x', 'X'], ['alone']])", "declare('bad', [['x', 'X'], {}])",
                                "declare('bad', [['x', 'X'], 3])", "declare('', [['x', 'X']])"}) {
            QCOMPARE(declare(bad), QString());
            QCOMPARE(changed.size(), 0);
            QCOMPARE(shown.page()->property("count").toInt(), 3);
        }
        QCOMPARE(declare("declare('bad', [])"), QString());
        QCOMPARE(changed.size(), 1);
        QVERIFY(shown.find("hint")->isVisible());
    }

    void theTitleOpensAndClosesTheList()
    {
        PageEngine engine;
        Shown shown(page(engine, "title"));
        QQuickItem* title = shown.find("title");
        const auto isOpen = [&] { return row(shown, 0)->isVisible() && model(shown)->getExpanded(); };
        QVERIFY(isOpen() && title->hasActiveFocus());
        shown.click(title);
        QVERIFY(!isOpen() && !row(shown, 0)->isVisible());
        for (const auto& [key, opens] :
             {std::pair{Qt::Key_Right, true}, std::pair{Qt::Key_Right, true}, std::pair{Qt::Key_Left, false},
              std::pair{Qt::Key_Return, true}, std::pair{Qt::Key_Space, false}}) {
            shown.press(key);
            QCOMPARE(isOpen(), opens);
        }
        model(shown)->setExpanded(true);
        QVERIFY(isOpen());
        shown.page()->setProperty("settings", QVariant::fromValue<QObject*>(nullptr));
        QVERIFY(!title->isEnabled());
    }

    void longNamesAreElided()
    {
        PageEngine engine;
        Shown shown(page(engine, "elided"));
        shown.window()->grabWindow();
        const auto* label = row(shown, 2)->findChild<QQuickItem*>(QStringLiteral("label"));
        QVERIFY(label->property("truncated").toBool());
        QVERIFY(label->mapRectToScene(label->boundingRect()).right() <= editor(shown, 2)->mapToScene(QPointF()).x());
    }

private:
    static QObject* page(PageEngine& engine, const char* tag)
    {
        return engine.load("import Tandolin\n"
                           "DevSettingsList { id: list; implicitWidth: 220; implicitHeight: 200\n"
                           "property var read: settings?.dict\n"
                           "function declare(tag, rows) { settings.load(tag, rows) }\n"
                           "property var own: UIDevSettingsModel { id: own; expanded: true }\n"
                           "settings: own\n"
                           "Component.onCompleted: declare('" +
                           QByteArray(tag) +
                           "', [['a', 'First & last'], ['b', 'Choice', ['one', 'two', 'three']],\n"
                           "['c', 'A name that is far too long for a list of this width']]) }");
    }
    static UIDevSettingsModel* model(const Shown& shown)
    {
        return shown.page()->property("settings").value<UIDevSettingsModel*>();
    }
    static QQuickItem* row(const Shown& shown, int row)
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(shown.page(), "itemAt", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, row));
        return found;
    }
    static QQuickItem* editor(const Shown& shown, int index)
    {
        return row(shown, index)->findChild<QQuickItem*>(QStringLiteral("editor"));
    }
};

PAGE_TEST_MAIN(TestControlsDevSettings)
#include "tst_controlsdevsettings.moc"
