#include "shownpage.h"
#include "support/table.h"
#include "velm/models/combomodel.h"
#include "velm/models/propertieslistmodel.h"
#include "velm/models/stringlistmodel.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace velm;
using velmtest::PageEngine;
using velmtest::Shown;

namespace {
QVariantMap modelProperty(QAbstractItemModel& model)
{
    return {{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}};
}

/// --- | Red | Green | --- | Grey | Blue | ---
std::vector<ComboItem> colours(const QString& icon)
{
    const auto item = [](const char* name, const QString& icon = {}) {
        return ComboItem(QLatin1String(name), icon, 30, 20, QLatin1String(name).size());
    };
    return {ComboItem::separator(), item("Red", icon), item("Green", QStringLiteral("missing.png")),
            ComboItem::separator(), item("Grey"),      item("Blue"),
            ComboItem::separator()};
}

/// A window with a list of properties, one of each kind.
class ShownProperties
{
public:
    ShownProperties() : m_model(QStringLiteral("Plot"))
    {
        add("Name", QStringLiteral("Layout"), PropertiesListModel::Text);
        add("Copies", 2, PropertiesListModel::Text);
        add("Paper", 1, PropertiesListModel::ComboBox, false, {QStringLiteral("A4"), QStringLiteral("A3")});
        add("Frame", true, PropertiesListModel::CheckBox);
        add("Live", false, PropertiesListModel::Switch);
        add("Picture", QString(), PropertiesListModel::Image);
        add("File", QStringLiteral("a.dxf"), PropertiesListModel::Text, true);
        add("Path", QStringLiteral("fixed"), PropertiesListModel::Text, false, {}, true);
        add("Locked", true, PropertiesListModel::CheckBox, false, {}, true);
        m_shown.emplace(
            m_engine.load("PropertyList { implicitWidth: 300; implicitHeight: 380 }", modelProperty(m_model)));
    }

    PropertiesListModel& model() { return m_model; }
    Shown& shown() { return *m_shown; }
    QQuickItem* row(int row) const
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(m_shown->page(), "itemAt", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, row));
        return found;
    }
    QQuickItem* find(int index, const char* name = "editor") const
    {
        return row(index)->findChild<QQuickItem*>(QString::fromLatin1(name));
    }
    QVariant shows(int index, const char* property) const { return find(index)->property(property); }

    QStringList log; ///< the handlers' calls

private:
    void add(const char* label, const QVariant& value, PropertiesListModel::Type type, bool hasButton = false,
             const QStringList& choices = {}, bool readOnly = false)
    {
        const QString name = QString::fromLatin1(label);
        const auto handler = [this, name] {
            log += name + QLatin1Char(' ') +
                   (m_model.isDeletingImage(name) ? QStringLiteral("deleted") : m_model.property(name).toString());
        };
        m_model.appendProperty(name, handler, hasButton, value, readOnly, type, name + QStringLiteral(" tip"), choices);
    }

    PropertiesListModel m_model;
    PageEngine m_engine;
    std::optional<Shown> m_shown;
};
} // namespace

/// Combo boxes, lists and lists of properties of models as a user works them.
class TestControlsValues : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysPassTheSeparatorsOfAComboBox_data()
    {
        const auto row = velmtest::columns<int, QList<int>, int>("start", "keys", "row");
        const int open = Qt::Key_F4; // stands for the click that opens the popup
        row("Down passes a separator", 2, {Qt::Key_Down}, 4);
        row("Up passes a separator", 4, {Qt::Key_Up}, 2);
        row("Up stops below the first separator", 1, {Qt::Key_Up}, 1);
        row("Down stops above the last separator", 5, {Qt::Key_Down}, 5);
        row("Home takes the first row that is none", 5, {Qt::Key_Home}, 1);
        row("End takes the last row that is none", 1, {Qt::Key_End}, 5);
        row("a letter", 1, {Qt::Key_B}, 5);
        row("the same letter goes on", 1, {Qt::Key_G, Qt::Key_G}, 4);
        row("letters narrow the search", 1, {Qt::Key_G, Qt::Key_R, Qt::Key_E, Qt::Key_Y}, 4);
        row("Down in the popup", 2, {open, Qt::Key_Down, Qt::Key_Return}, 4);
        row("Up in the popup", 4, {open, Qt::Key_Up, Qt::Key_Return}, 2);
        row("End in the popup", 1, {open, Qt::Key_End, Qt::Key_Return}, 5);
        row("Home in the popup", 5, {open, Qt::Key_Home, Qt::Key_Return}, 1);
        row("letters in the popup", 1, {open, Qt::Key_G, Qt::Key_R, Qt::Key_E, Qt::Key_Y, Qt::Key_Return}, 4);
        row("Escape in the popup", 2, {open, Qt::Key_Down, Qt::Key_Escape}, 2);
    }
    void keysPassTheSeparatorsOfAComboBox()
    {
        QFETCH(int, start);
        QFETCH(QList<int>, keys);
        QFETCH(int, row);
        ComboModel model(colours({}));
        PageEngine engine;
        Shown shown(engine.load("ModelComboBox {}", modelProperty(model)));
        QObject* box = shown.page();
        box->setProperty("currentIndex", start);
        QSignalSpy activated(box, SIGNAL(activated(int)));
        QSignalSpy changed(box, SIGNAL(currentIndexChanged()));
        for (const int key : keys) {
            if (key == Qt::Key_F4)
                shown.click(qobject_cast<QQuickItem*>(box));
            else
                shown.press(Qt::Key(key));
        }
        QTRY_COMPARE(box->property("currentIndex").toInt(), row);
        QCOMPARE(activated.isEmpty(), changed.isEmpty());
        for (const QVariantList& arguments : activated)
            QVERIFY(model.getItem(arguments.first().toInt())->type == ComboItem::getDefaultItemType());
        QCOMPARE(box->property("currentText").toString(), model.getItem(row)->text);
        QCOMPARE(box->property("currentValue").toString(), model.getItem(row)->value.toString());
    }

    void theMouseCannotChooseASeparator()
    {
        ComboModel model(colours({}));
        PageEngine engine;
        Shown shown(engine.load("Pane { id: root; implicitHeight: 380; property var model\n"
                                "ModelComboBox { objectName: 'box'; model: root.model; currentIndex: 1 } }",
                                modelProperty(model)));
        QQuickItem* box = shown.find("box");
        const auto* popup = box->property("popup").value<QObject*>();
        shown.click(box);
        QTRY_VERIFY(popup->property("visible").toBool());
        const auto* list = popup->property("contentItem").value<QQuickItem*>();
        const auto rowItem = [&](int row) {
            QQuickItem* found = nullptr;
            QMetaObject::invokeMethod(const_cast<QQuickItem*>(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                                      Q_ARG(int, row));
            return found;
        };
        QTRY_VERIFY(rowItem(4));
        shown.click(rowItem(3));
        QCoreApplication::processEvents();
        QVERIFY(popup->property("visible").toBool());
        QCOMPARE(box->property("currentIndex").toInt(), 1);
        shown.click(rowItem(4));
        QTRY_VERIFY(!popup->property("visible").toBool());
        QCOMPARE(box->property("currentIndex").toInt(), 4);
    }

    void aComboBoxShowsIcons()
    {
        const QTemporaryDir folder;
        QImage picture(30, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString file = folder.filePath(QStringLiteral("red.png"));
        QVERIFY(picture.save(file));
        ComboModel model(colours(file));
        PageEngine engine;
        Shown shown(engine.load("ModelComboBox {}", modelProperty(model)));
        auto* box = qobject_cast<QQuickItem*>(shown.page());
        box->setProperty("currentIndex", 1);
        const QPoint inside(6 + 15, qRound(box->height()) / 2);
        QTRY_COMPARE(shown.window()->grabWindow().pixelColor(inside), QColor(Qt::red));
        // An icon that isn't found is none, without a word.
        box->setProperty("currentIndex", 2);
        QTRY_VERIFY(shown.window()->grabWindow().pixelColor(inside) != QColor(Qt::red));
        // The model may change it.
        model.update(2, ComboItem(QStringLiteral("Green"), file, 30, 20, 1));
        QTRY_COMPARE(shown.window()->grabWindow().pixelColor(inside), QColor(Qt::red));
    }

    void listsShowTheirModels()
    {
        StringListModel strings({QStringLiteral("Alpha"), QStringLiteral("Beta & more"), QStringLiteral("Gamma")});
        ComboModel combo(colours({}));
        PageEngine engine;
        {
            Shown shown(engine.load("PlainListView {}", modelProperty(strings)));
            shown.type("g");
            QCOMPARE(shown.page()->property("currentIndex").toInt(), 2);
            strings.move(2, 2, 0);
            QTRY_COMPARE(shown.page()->property("currentIndex").toInt(), 0);
            strings.update(1, QStringLiteral("Zeta"));
            shown.press(Qt::Key_Home);
            shown.type("z");
            QCOMPARE(shown.page()->property("currentIndex").toInt(), 1);
        }
        Shown shown(engine.load("PlainListView { textRole: 'text' }", modelProperty(combo)));
        shown.type("blue");
        QCOMPARE(shown.page()->property("currentIndex").toInt(), 5);
    }

    void editsReachTheModelInItsTypes()
    {
        ShownProperties list;
        list.find(2)->forceActiveFocus();
        list.shown().press(Qt::Key_Up);
        QCOMPARE(list.log.takeLast(), QStringLiteral("Paper 0"));
        QCOMPARE(list.model().property(QStringLiteral("Paper")), QVariant(0));
        list.shown().click(list.find(3));
        QCOMPARE(list.log.takeLast(), QStringLiteral("Frame false"));
        list.find(4)->forceActiveFocus();
        list.shown().press(Qt::Key_Space);
        QCOMPARE(list.log.takeLast(), QStringLiteral("Live true"));
        list.shown().press(Qt::Key_Space);
        QCOMPARE(list.log.takeLast(), QStringLiteral("Live false"));
        // A number stays one; what is none is refused here.
        for (const char* text : {"7", "many", "", "2.5"}) {
            list.find(1)->forceActiveFocus();
            QMetaObject::invokeMethod(list.find(1), "selectAll");
            list.shown().press(Qt::Key_Delete);
            list.shown().type(text);
            list.shown().press(Qt::Key_Return);
            QCOMPARE(list.shows(1, "text").toString(), QStringLiteral("7"));
        }
        QCOMPARE(list.model().property(QStringLiteral("Copies")), QVariant(7));
        QCOMPARE(list.log, QStringList{QStringLiteral("Copies 7")});
    }

    void aTextIsCommittedByEnterAndByLeaving()
    {
        ShownProperties list;
        list.find(0)->forceActiveFocus();
        list.shown().press(Qt::Key_End);
        list.shown().type(" 1");
        QVERIFY(list.log.isEmpty());
        list.shown().press(Qt::Key_Return);
        QCOMPARE(list.log, QStringList{QStringLiteral("Name Layout 1")});
        // Nothing new: nothing is told.
        list.shown().press(Qt::Key_Return);
        list.shown().press(Qt::Key_Tab);
        QCOMPARE(list.log.size(), 1);
        // The rows follow each other, and the one that is left tells its text.
        for (int row = 1; row < 5; ++row) {
            QVERIFY2(list.find(row)->hasActiveFocus(), qPrintable(QString::number(row)));
            if (row == 1)
                list.shown().type("1");
            list.shown().press(Qt::Key_Tab);
        }
        QCOMPARE(list.log.takeLast().left(6), QStringLiteral("Copies"));
        QCOMPARE(list.log.size(), 1);
    }

    void escapeBringsTheFormerTextBack()
    {
        ShownProperties list;
        list.find(0)->forceActiveFocus();
        list.shown().type("new");
        list.shown().press(Qt::Key_Escape);
        QCOMPARE(list.shows(0, "text").toString(), QStringLiteral("Layout"));
        list.shown().press(Qt::Key_Tab);
        QVERIFY(list.log.isEmpty());
    }

    void theOwnersValuesReachTheEditors()
    {
        ShownProperties list;
        PropertiesListModel& model = list.model();
        // Also after an edit, and when the value is the one that the page read first.
        for (int round = 0; round < 2; ++round) {
            model.setProperty(QStringLiteral("Name"), QStringLiteral("Other"));
            QCOMPARE(list.shows(0, "text").toString(), QStringLiteral("Other"));
            model.setProperty(QStringLiteral("Frame"), false);
            QCOMPARE(list.shows(3, "checked").toBool(), false);
            model.setProperty(QStringLiteral("Live"), true);
            QCOMPARE(list.shows(4, "checked").toBool(), true);
            model.setComboBoxProperty(QStringLiteral("Paper"), 2,
                                      {QStringLiteral("A2"), QStringLiteral("A1"), QStringLiteral("A0")});
            QCOMPARE(list.shows(2, "currentIndex").toInt(), 2);
            QCOMPARE(list.shows(2, "displayText").toString(), QStringLiteral("A0"));

            list.find(2)->forceActiveFocus();
            list.shown().press(Qt::Key_Up);
            list.shown().click(list.find(3));
            list.shown().click(list.find(4));
            QCOMPARE(model.property(QStringLiteral("Paper")), QVariant(1));
            QCOMPARE(model.property(QStringLiteral("Frame")), QVariant(true));
            QCOMPARE(model.property(QStringLiteral("Live")), QVariant(false));
        }
    }

    void aHandlerMayRefuseAValue()
    {
        PropertiesListModel model(QStringLiteral("Plot"));
        model.appendProperty(
            QStringLiteral("Frame"), [&model] { model.setProperty(QStringLiteral("Frame"), false); }, false, false,
            false, PropertiesListModel::CheckBox);
        PageEngine engine;
        Shown shown(engine.load("PropertyList { implicitWidth: 300; implicitHeight: 380 }", modelProperty(model)));
        QQuickItem* row = nullptr;
        QMetaObject::invokeMethod(shown.page(), "itemAt", Q_RETURN_ARG(QQuickItem*, row), Q_ARG(int, 0));
        auto* box = row->findChild<QQuickItem*>(QStringLiteral("editor"));
        shown.click(box);
        QCOMPARE(model.property(QStringLiteral("Frame")), QVariant(false));
        QVERIFY(!box->property("checked").toBool());
    }

    void readOnlyRowsAreNotEdited()
    {
        ShownProperties list;
        list.shown().click(list.find(8));
        QVERIFY(list.shows(8, "checked").toBool());
        list.find(7)->forceActiveFocus();
        list.shown().type("x");
        list.shown().press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(list.shows(7, "selectedText").toString(), QStringLiteral("fixed"));
        QVERIFY(list.log.isEmpty());
    }

    void buttonsAskTheOwner()
    {
        ShownProperties list;
        QVERIFY(!list.find(0, "more")->isVisible());
        list.shown().click(list.find(6, "more"));
        QCOMPARE(list.log.takeLast(), QStringLiteral("File a.dxf"));
        QVERIFY(!list.find(5, "delete")->isEnabled());
        list.shown().click(list.find(5, "pick"));
        QCOMPARE(list.log.takeLast(), QStringLiteral("Picture "));
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("red.png"));
        QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(file));
        list.model().setProperty(QStringLiteral("Picture"), file);
        QTRY_COMPARE(list.find(5, "preview")->property("status").toInt(), 1);
        list.log.clear();
        list.shown().click(list.find(5, "delete"));
        QCOMPARE(list.log, QStringList{QStringLiteral("Picture deleted")});
    }

    void anotherModelTakesOver()
    {
        ShownProperties list;
        list.find(0)->forceActiveFocus();
        list.shown().type("half");
        PropertiesListModel other(QStringLiteral("Other"));
        other.appendProperty(QStringLiteral("Only"), {}, false, 5, false, PropertiesListModel::Text);
        list.shown().page()->setProperty("model", QVariant::fromValue<QObject*>(&other));
        QTRY_COMPARE(list.shown().page()->property("count").toInt(), 1);
        QCOMPARE(list.shows(0, "text").toString(), QStringLiteral("5"));
        other.setProperty(QStringLiteral("Only"), 6);
        QCOMPARE(list.shows(0, "text").toString(), QStringLiteral("6"));
        list.shown().page()->setProperty("model", QVariant());
        QTRY_COMPARE(list.shown().page()->property("count").toInt(), 0);
    }
};

PAGE_TEST_MAIN(TestControlsValues)
#include "tst_controlsvalues.moc"
