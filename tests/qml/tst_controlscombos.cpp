#include "od/oddbdatabase.h"
#include "shownpage.h"
#include "support/fakehost.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/arrowheadmodel.h"
#include "velm/drawingprops/colormodel.h"
#include "velm/drawingprops/linetypemodel.h"
#include "velm/drawingprops/lineweightmodel.h"
#include "velm/units/settings.h"

#include <QSignalSpy>
#include <QTimer>
#include <QWheelEvent>

#include <wx/bitmap.h>
#include <wx/image.h>

using namespace velm;
using velmtest::PageEngine;
using velmtest::Shown;

namespace {
/// A host with the usual colours, four linetypes and as many lineweights as asked for.
class Host
{
public:
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    std::shared_ptr<OdDbDatabase> drawing = std::make_shared<OdDbDatabase>();
    QString unit = QStringLiteral("mm");
    int weights = 5;
    wxColour ground = wxColour(255, 0, 255);

    Host()
    {
        gui.describe = [](const OdCmColor& color, wxColour, bool, int) {
            static const char* const names[] = {"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta", "White"};
            ColorDescription description;
            description.color = wxColour(color.red(), color.green(), color.blue());
            description.name = color.isByLayer()                            ? "ByLayer"
                               : color.isByBlock()                          ? "ByBlock"
                               : color.isByACI() && color.colorIndex() <= 7 ? names[color.colorIndex() - 1]
                                                                            : "Picked";
            description.drawDiagonal = color.isByBlock();
            return description;
        };
        gui.lineWeights = [this] {
            std::vector<std::pair<int, OdString>> table{{-1, L"ByLayer"}};
            for (int weight = 0; weight < weights; ++weight)
                table.emplace_back(weight * 25, odFromQt(QStringLiteral("%1 %2").arg(weight * 25).arg(unit)));
            return table;
        };
        gui.lineTypes = [](OdDbDatabase* database, bool, OdDbObjectId&, bool, LoadedLineTypes& loaded) {
            for (const OdDbLinetypeTableRecord* record : database->linetypes())
                loaded.ids.append(record->objectId());
            return true;
        };
        gui.drawLineType = [this](int width, int height, wxBitmap& bitmap, OdDbObjectId id, OdDbObjectId,
                                  const wxColour&) {
            if (id.isNull())
                return false;
            wxImage image(width, height);
            image.SetRGB(wxRect(), ground.Red(), ground.Green(), ground.Blue());
            bitmap = wxBitmap(image);
            return true;
        };
        drawing->addLinetype(L"Dashed");
    }

    /// Flags 3: ByLayer, ByBlock, Red, Yellow, Green, Cyan, Blue, Magenta, White, [varies,] load.
    std::unique_ptr<ColorModel> colours(bool varies = false, int flags = 3)
    {
        return std::make_unique<ColorModel>(gui, dialogs, flags, varies, QSize(16, 16), QColor(), QString());
    }
    /// ByBlock, ByLayer, Continuous, Dashed, load.
    std::unique_ptr<LineTypeModel> lineTypes()
    {
        const LineTypeModelParams params{drawing.get(), 0, 0};
        return std::make_unique<LineTypeModel>(params, gui, dialogs, QSize(60, 14), nullptr);
    }
    /// ByLayer, 0, 25, 50 ... mm.
    std::unique_ptr<LineWeightModel> lineWeights()
    {
        return std::make_unique<LineWeightModel>(gui, LineWeightModelParams(true, true, false), QSize());
    }
    /// Closed, Dot, [the extra one,] load.
    std::unique_ptr<ArrowHeadModel> arrowHeads(bool extra = false)
    {
        ArrowHeadModelParams params;
        params.records = {{QStringLiteral("_CLOSEDFILLED"), QStringLiteral("Closed"), picture(Qt::red)},
                          {QStringLiteral("_DOT"), QStringLiteral("Dot"), picture(Qt::green)}};
        if (extra)
            params.extra = {QStringLiteral("Mine"), QStringLiteral("Mine"), {}};
        params.chooser = [this] { return chosenArrowHead; };
        return std::make_unique<ArrowHeadModel>(params, gui, dialogs, QSize(32, 16), nullptr);
    }
    static QImage picture(const QColor& color)
    {
        QImage image(32, 16, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }

    ArrowHeadRecord chosenArrowHead;
};

/// A page with a combo of a model, which is its first control, and another one.
class ShownCombo
{
public:
    ShownCombo(const char* type, QAbstractItemModel& model, const char* more = "")
        : m_shown(m_engine.load(
              QByteArray("import Tandolin.API.Core.Themes.Engine\n"
                         "Pane { function setTheme(theme: int) { Theme.setColorTheme(theme) }\n"
                         " id: root; implicitWidth: 300; implicitHeight: 200; property var model: null\n") +
                  type + " { id: combo; objectName: 'box'; width: 180; model: root.model; focus: true\n" + more +
                  " }\n" + "Button { objectName: 'other'; y: 100; text: 'x'; focusPolicy: Qt.NoFocus } }",
              {{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}}))
    {
        if (m_shown.isReady())
            box()->forceActiveFocus();
    }

    Shown& shown() { return m_shown; }
    QQuickItem* box() const { return m_shown.find("box"); }
    QVariant value(const char* name) const { return box()->property(name); }
    QString name() const { return value("currentName").toString(); }
    int row() const { return value("currentIndex").toInt(); }
    bool isOpen() const { return value("opened").toBool(); }
    int highlighted() const { return value("highlightedIndex").toInt(); }
    QQuickWindow* list() const { return qobject_cast<QQuickWindow*>(value("listWindow").value<QObject*>()); }
    QQuickItem* rows() const { return list()->findChild<QQuickItem*>(QStringLiteral("rows")); }
    QQuickItem* rowItem(int row) const
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(rows(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, row));
        return found;
    }
    QString rowName(int row) const
    {
        const auto* label = rowItem(row)->findChild<QQuickItem*>(QStringLiteral("name"));
        return label->property("text").toString();
    }
    QPoint centreOf(const QQuickItem* item) const
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void open() { m_shown.click(box()); }
    void clickRow(int row) { QTest::mouseClick(list(), Qt::LeftButton, {}, centreOf(rowItem(row))); }
    void turnWheel(int notches)
    {
        const QPoint place = centreOf(box());
        QWheelEvent event(place, m_shown.window()->mapToGlobal(place), {}, QPoint(0, 120 * notches), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_shown.window(), &event);
    }
    /// What the box, or the list's row, shows as its picture.
    QColor pictureColor(int listRow = -1)
    {
        QQuickItem* face = listRow < 0 ? box() : rowItem(listRow);
        const QPointF inside(6 + 8, face->height() / 2);
        QQuickWindow* window = listRow < 0 ? m_shown.window() : list();
        return window->grabWindow().pixelColor(face->mapToScene(inside).toPoint());
    }

private:
    PageEngine m_engine;
    Shown m_shown;
};
} // namespace

/// The combos of drawing properties as a user works them.
class TestControlsCombos : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysChooseAndOpen_data();
    void keysChooseAndOpen();
    void theWheelNeverReachesTheLastRows();
    void theBoxFollowsItsModelAlone();
    void theLoadRowOpensItsDialogOnceTheListHasGone();
    void lineTypesAreLoadedFromTheList();
    void coloursShowTheirSwatches();
    void theLayerMayBeShownAsBlack();
    void lineTypesShowTheirPreviews();
    void lineWeightsFollowTheirUnits();
    void anArrowHeadWithoutAnObjectIsShownByThePage();
    void theListFitsTheScreenAndScrolls();
    void theListClosesByWhicheverRoad_data();
    void theListClosesByWhicheverRoad();
    void theEngineLeavesTheRowsToTheirModel();
    void aTipComesInAWindowOfItsOwn();
};

void TestControlsCombos::keysChooseAndOpen_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("open");
    const int alt = Qt::ALT;
    // With the varies row 9 and the load row 10.
    QTest::newRow("Down") << 2 << QList<int>{Qt::Key_Down} << 3 << false;
    QTest::newRow("Up stops at the first row") << 0 << QList<int>{Qt::Key_Up} << 0 << false;
    QTest::newRow("Down stops before the varies row") << 8 << QList<int>{Qt::Key_Down} << 8 << false;
    QTest::newRow("Up leaves the varies row") << 9 << QList<int>{Qt::Key_Up} << 8 << false;
    QTest::newRow("Home") << 5 << QList<int>{Qt::Key_Home} << 0 << false;
    QTest::newRow("End passes what is no value") << 1 << QList<int>{Qt::Key_End} << 8 << false;
    QTest::newRow("a letter goes on behind the row") << 0 << QList<int>{Qt::Key_B} << 1 << false;
    QTest::newRow("the same letter again") << 0 << QList<int>{Qt::Key_B, Qt::Key_B} << 6 << false;
    QTest::newRow("letters narrow the search") << 2 << QList<int>{Qt::Key_B, Qt::Key_Y, Qt::Key_L} << 0 << false;
    QTest::newRow("no row begins so") << 2 << QList<int>{Qt::Key_S} << 2 << false;
    QTest::newRow("F4 opens") << 2 << QList<int>{Qt::Key_F4, Qt::Key_Down} << 2 << true;
    QTest::newRow("F4 closes") << 2 << QList<int>{Qt::Key_F4, Qt::Key_Down, Qt::Key_F4} << 2 << false;
    QTest::newRow("Alt+Down opens and Enter chooses")
        << 2 << QList<int>{alt | Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter} << 3 << false;
    QTest::newRow("Space opens and chooses") << 2 << QList<int>{Qt::Key_Space, Qt::Key_Up, Qt::Key_Space} << 1 << false;
    QTest::newRow("Escape keeps the row") << 2 << QList<int>{Qt::Key_F4, Qt::Key_End, Qt::Key_Escape} << 2 << false;
    QTest::newRow("letters in the list") << 2 << QList<int>{Qt::Key_F4, Qt::Key_M, Qt::Key_Return} << 7 << false;
    QTest::newRow("the varies row is passed in the list, the load row is not")
        << 2 << QList<int>{Qt::Key_F4, Qt::Key_End, Qt::Key_Up, Qt::Key_Return} << 8 << false;
}

void TestControlsCombos::keysChooseAndOpen()
{
    QFETCH(const int, start);
    QFETCH(const QList<int>, keys);
    QFETCH(const int, row);
    QFETCH(const bool, open);
    Host host;
    const auto model = host.colours(true);
    model->setCurrentIndex(start);
    ShownCombo combo("ColorCombo", *model);
    QVERIFY(combo.shown().isReady());
    QSignalSpy chosen(model.get(), &IColorModel::colorChanged);
    for (const int key : keys)
        combo.shown().press(Qt::Key(key & ~Qt::ALT), key & Qt::ALT ? Qt::AltModifier : Qt::NoModifier);
    QCOMPARE(combo.row(), row);
    QCOMPARE(model->getCurrentIndex(), row);
    QCOMPARE(combo.isOpen(), open);
    QCOMPARE(chosen.isEmpty(), row == start);
}

void TestControlsCombos::theWheelNeverReachesTheLastRows()
{
    Host host;
    const auto model = host.colours(true);
    ShownCombo combo("ColorCombo", *model);
    QVERIFY(combo.shown().isReady());
    QCOMPARE(combo.row(), -1);
    combo.turnWheel(-1);
    QCOMPARE(combo.row(), 0);
    combo.turnWheel(-3);
    QCOMPARE(combo.row(), 3);
    combo.turnWheel(1);
    QCOMPARE(combo.row(), 2);
    combo.turnWheel(-30);
    QCOMPARE(combo.row(), 8);
    combo.open();
    combo.turnWheel(1);
    QCOMPARE(combo.row(), 8);
    combo.shown().press(Qt::Key_Escape);
    model->setCurrentIndex(9);
    combo.turnWheel(1);
    QCOMPARE(combo.row(), 8);
}

void TestControlsCombos::theBoxFollowsItsModelAlone()
{
    Host host;
    const auto model = host.arrowHeads();
    ShownCombo combo("ArrowHeadCombo", *model, "property int wanted: -1; onChosen: index => wanted = index");
    QVERIFY(combo.shown().isReady());
    QCOMPARE(combo.name(), QStringLiteral("Closed"));
    // The owner need not do what the user wants.
    combo.shown().press(Qt::Key_Down);
    QCOMPARE(combo.value("wanted").toInt(), 1);
    QCOMPARE(combo.row(), 0);
    QCOMPARE(combo.name(), QStringLiteral("Closed"));
    model->setCurrentIndex(1);
    QCOMPARE(combo.name(), QStringLiteral("Dot"));
    model->setCurrentIndex(-1);
    QCOMPARE(combo.name(), QString());
    QCOMPARE(combo.row(), -1);
    host.chosenArrowHead.internalName = QStringLiteral("_DOT");
    model->showArrowHeadsDialog(0);
    QCOMPARE(combo.name(), QStringLiteral("Dot"));

    const auto colours = host.colours();
    combo.shown().page()->setProperty("model", QVariant());
    QCOMPARE(combo.row(), -1);
    combo.shown().press(Qt::Key_F4);
    QVERIFY(!combo.isOpen());
}

void TestControlsCombos::theLoadRowOpensItsDialogOnceTheListHasGone()
{
    Host host;
    const auto model = host.colours();
    model->setCurrentIndex(4);
    ShownCombo combo("ColorCombo", *model);
    QVERIFY(combo.shown().isReady());
    host.dialogs.colors = {std::nullopt, OdCmColor::fromRGB(10, 20, 30)};
    for (const char* name : {"Green", "Picked"}) {
        host.dialogs.log.clear();
        combo.open();
        QTRY_VERIFY(combo.rowItem(9));
        QCOMPARE(combo.rowName(9), QStringLiteral("Select colour..."));
        combo.clickRow(9);
        QTRY_COMPARE(host.dialogs.log.size(), 1);
        QVERIFY(!combo.isOpen());
        QCOMPARE(combo.name(), QString::fromLatin1(name));
    }
    QCOMPARE(combo.row(), 9);
    QCOMPARE(combo.value("count").toInt(), 11);
}

void TestControlsCombos::lineTypesAreLoadedFromTheList()
{
    Host host;
    const auto lineTypes = host.lineTypes();
    lineTypes->setPropertiesAction([&] { host.dialogs.log += QStringLiteral("properties"); });
    lineTypes->refresh(false, lineTypes->lineTypeId(3).value());
    lineTypes->setCurrentLineType(lineTypes->lineTypeId(3).value());
    ShownCombo lines("LineTypeCombo", *lineTypes);
    QVERIFY(lines.shown().isReady());
    QCOMPARE(lines.name(), QStringLiteral("Dashed"));
    lines.turnWheel(-1);
    QCOMPARE(lines.row(), 3);
    host.dialogs.log.clear();
    lines.shown().press(Qt::Key_F4);
    lines.shown().press(Qt::Key_End);
    lines.shown().press(Qt::Key_Return);
    QTRY_COMPARE(host.dialogs.log, QStringList{QStringLiteral("properties")});
    bool wasOpen = true;
    host.dialogs.loadLineTypes = [&](OdArray<OdString>& loaded) {
        wasOpen = lines.isOpen();
        host.drawing->addLinetype(L"Dotted");
        loaded.append(L"Dotted");
        return true;
    };
    lines.shown().press(Qt::Key_F4);
    lines.shown().press(Qt::Key_End);
    lines.shown().press(Qt::Key_Up);
    lines.shown().press(Qt::Key_Return);
    QTRY_COMPARE(lines.name(), QStringLiteral("Dotted"));
    QVERIFY(!wasOpen);
}

void TestControlsCombos::coloursShowTheirSwatches()
{
    Host host;
    auto* layer = host.drawing->addLayer(L"Walls");
    layer->setColor(OdCmColor::fromRGB(200, 100, 50));
    const auto model = host.colours(true);
    model->setByLayer(layer->objectId());
    model->setCurrentIndex(0);
    ShownCombo combo("ColorCombo", *model);
    QVERIFY(combo.shown().isReady());
    QTRY_COMPARE(combo.pictureColor(), QColor(200, 100, 50));
    layer->setColor(OdCmColor::fromRGB(20, 100, 50));
    model->setByLayer(layer->objectId());
    QTRY_COMPARE(combo.pictureColor(), QColor(20, 100, 50));
    combo.open();
    QTRY_VERIFY(combo.rowItem(9));
    QTRY_COMPARE(combo.pictureColor(2), QColor(Qt::red));
    QCOMPARE(combo.rowName(9), QStringLiteral("*Varies*"));
    combo.clickRow(9);
    QVERIFY(combo.isOpen());
    QTest::mouseMove(combo.list(), combo.centreOf(combo.rowItem(5)));
    QTRY_COMPARE(combo.highlighted(), 5);
    QTest::mouseMove(combo.list(), combo.centreOf(combo.rowItem(9)));
    combo.clickRow(3);
    QCOMPARE(combo.name(), QStringLiteral("Yellow"));
    QTRY_COMPARE(combo.pictureColor(), QColor(Qt::yellow));
}

void TestControlsCombos::theLayerMayBeShownAsBlack()
{
    Host host;
    auto* layer = host.drawing->addLayer(L"Walls");
    layer->setColor(OdCmColor::fromRGB(200, 100, 50));
    const auto black = host.colours(false, 4);
    black->setByLayer(layer->objectId());
    black->setCurrentIndex(7);
    ShownCombo blackCombo("ColorCombo", *black);
    QVERIFY(blackCombo.shown().isReady());
    QCOMPARE(blackCombo.name(), QStringLiteral("ByLayer"));
    QTRY_COMPARE(blackCombo.pictureColor(), QColor(Qt::black));
}

void TestControlsCombos::lineTypesShowTheirPreviews()
{
    Host host;
    const auto model = host.lineTypes();
    model->setCurrentLineType(model->lineTypeId(2).value());
    // While a page is made for another theme, the host's colours aren't those of that theme.
    host.ground = wxColour(192, 192, 192);
    QTimer::singleShot(0, [&] { host.ground = wxColour(255, 0, 255); });
    ShownCombo combo("LineTypeCombo", *model);
    QVERIFY(combo.shown().isReady());
    QTRY_COMPARE(combo.pictureColor(), QColor(255, 0, 255));
    // Its ground is the theme's.
    host.ground = wxColour(255, 255, 0);
    QMetaObject::invokeMethod(combo.shown().page(), "setTheme", Q_ARG(int, 1));
    QTRY_COMPARE(combo.pictureColor(), QColor(255, 255, 0));
    host.ground = wxColour(255, 0, 255);
    QMetaObject::invokeMethod(combo.shown().page(), "setTheme", Q_ARG(int, 0));
    QTRY_COMPARE(combo.pictureColor(), QColor(255, 0, 255));
    // Where the varies row is current, it has no picture, and it can't be chosen.
    model->setIsVaries(true);
    model->refresh(false, model->lineTypeId(2).value());
    QCOMPARE(combo.name(), QStringLiteral("*Varies*"));
    QVERIFY(combo.pictureColor() != QColor(255, 0, 255));
    combo.open();
    QTRY_VERIFY(combo.rowItem(5));
    QCOMPARE(combo.rowName(5), QStringLiteral("Load..."));
    QTRY_COMPARE(combo.pictureColor(3), QColor(255, 0, 255));
    combo.clickRow(4);
    QVERIFY(combo.isOpen());
    combo.clickRow(3);
    QCOMPARE(combo.name(), QStringLiteral("Dashed"));
}

void TestControlsCombos::lineWeightsFollowTheirUnits()
{
    Host host;
    const auto model = host.lineWeights();
    model->setCurrentIndex(5);
    ShownCombo combo("LineWeightCombo", *model);
    QVERIFY(combo.shown().isReady());
    const auto strokeHeight = [](const QQuickItem* item) {
        return item->findChild<QQuickItem*>(QStringLiteral("stroke"))->height();
    };
    QCOMPARE(combo.name(), QStringLiteral("100 mm"));
    QCOMPARE(strokeHeight(combo.box()), 14.0);
    host.unit = QStringLiteral("inch");
    combo.open();
    QTRY_VERIFY(combo.rowItem(4));
    QCOMPARE(combo.rowName(4), QStringLiteral("75 inch"));
    QCOMPARE(strokeHeight(combo.rowItem(3)), 7.0);
    QCOMPARE(strokeHeight(combo.rowItem(1)), 1.0);
    QCOMPARE(combo.name(), QStringLiteral("100 inch"));
    // And while the list is open.
    host.unit = QStringLiteral("ft");
    Q_EMIT model->dataChanged(model->index(0), model->index(5));
    QTRY_COMPARE(combo.rowName(4), QStringLiteral("75 ft"));
    QCOMPARE(combo.name(), QStringLiteral("100 ft"));
    combo.clickRow(2);
    QCOMPARE(combo.name(), QStringLiteral("25 ft"));
    model->setIsVaries(true);
    QCOMPARE(combo.name(), QStringLiteral("*Varies*"));
    combo.turnWheel(-1);
    QCOMPARE(combo.row(), 6);
    model->setIsVaries(false);
    QCOMPARE(combo.name(), QStringLiteral("ByLayer"));
}

void TestControlsCombos::anArrowHeadWithoutAnObjectIsShownByThePage()
{
    Host host;
    const auto model = host.arrowHeads(true);
    ShownCombo combo("ArrowHeadCombo", *model, "onChosen: index => model.objectName = index");
    QVERIFY(combo.shown().isReady());
    QTRY_COMPARE(combo.pictureColor(), QColor(Qt::red));
    model->setCurrentIndex(2);
    QCOMPARE(combo.name(), QString());
    QVERIFY(combo.pictureColor() != QColor(Qt::red));
    combo.box()->setProperty("extraName", QStringLiteral("Mine"));
    combo.box()->setProperty("extraImage", Host::picture(Qt::blue));
    QCOMPARE(combo.name(), QStringLiteral("Mine"));
    QTRY_COMPARE(combo.pictureColor(), QColor(Qt::blue));
    combo.open();
    QTRY_VERIFY(combo.rowItem(3));
    QTRY_COMPARE(combo.pictureColor(2), QColor(Qt::blue));
    QCOMPARE(combo.rowName(3), QStringLiteral("Select..."));
    host.chosenArrowHead = {QStringLiteral("_DOT"), {}, {}};
    combo.clickRow(3);
    QTRY_COMPARE(combo.name(), QStringLiteral("Dot"));
    QCOMPARE(model->objectName(), QString());
    combo.turnWheel(-1);
    QCOMPARE(model->objectName(), QStringLiteral("2"));
}

void TestControlsCombos::theListFitsTheScreenAndScrolls()
{
    Host host;
    host.weights = 100;
    const auto model = host.lineWeights();
    model->setCurrentIndex(95);
    ShownCombo combo("LineWeightCombo", *model);
    QVERIFY(combo.shown().isReady());
    const QRect screen = combo.shown().window()->screen()->geometry();
    // The list is shown where there is more room.
    for (const bool below : {true, false}) {
        combo.shown().window()->setPosition(20, below ? 50 : screen.height() - 130);
        combo.open();
        const QRect list = combo.list()->geometry();
        QVERIFY(screen.contains(list));
        QVERIFY(list.height() > screen.height() / 2);
        const QRect box(combo.box()->mapToGlobal(QPointF()).toPoint(), combo.box()->size().toSize());
        QCOMPARE(below ? list.top() - box.bottom() : box.top() - list.bottom(), 2);
        QVERIFY(list.width() >= box.width());
        QTRY_VERIFY(combo.rowItem(95));
        QVERIFY(combo.rowItem(95)->property("highlighted").toBool());
        QVERIFY(combo.rows()->property("contentY").toDouble() > 0);
        combo.shown().press(Qt::Key_PageUp);
        const int shownRows = (list.height() - 2) / 24;
        QCOMPARE(combo.highlighted(), 95 - (shownRows - 1));
        combo.shown().press(Qt::Key_Home);
        QTRY_VERIFY(combo.rowItem(0));
        combo.shown().press(Qt::Key_Escape);
    }
    host.weights = 2;
    const auto few = host.lineWeights();
    combo.shown().page()->setProperty("model", QVariant::fromValue<QObject*>(few.get()));
    combo.shown().window()->setPosition(20, screen.height() - 130);
    combo.open();
    QCOMPARE(combo.list()->height(), 3 * 24 + 2);
}

void TestControlsCombos::theListClosesByWhicheverRoad_data()
{
    QTest::addColumn<int>("road");
    QTest::newRow("the box is clicked again") << 0;
    QTest::newRow("another place of the page is clicked") << 1;
    QTest::newRow("another window gets the keyboard") << 2;
    QTest::newRow("the box is disabled") << 3;
    QTest::newRow("the box is hidden") << 4;
    QTest::newRow("the document is closed") << 5;
    QTest::newRow("the linetypes change") << 6;
    QTest::newRow("the model goes") << 7;
}

void TestControlsCombos::theListClosesByWhicheverRoad()
{
    QFETCH(const int, road);
    Host host;
    auto model = host.lineTypes();
    ShownCombo combo("LineTypeCombo", *model);
    QVERIFY(combo.shown().isReady());
    combo.open();
    QVERIFY(combo.isOpen());
    QTRY_VERIFY(combo.rowItem(4));
    QWindow other;
    if (road == 0) {
        combo.open();
    } else if (road == 1) {
        combo.shown().click(combo.shown().find("other"));
    } else if (road == 2) {
        other.show();
        other.requestActivate();
    } else if (road == 3) {
        combo.box()->setEnabled(false);
    } else if (road == 4) {
        combo.box()->setVisible(false);
    } else if (road == 5) {
        // Nothing is left of a choice that was just made.
        QMetaObject::invokeMethod(combo.box(), "finish", Q_ARG(int, 4));
        QMetaObject::invokeMethod(combo.box(), "open");
        QVERIFY(combo.isOpen());
        model->setDatabase(false, nullptr);
        host.drawing.reset();
    } else if (road == 6) {
        host.drawing->addLinetype(L"Dotted");
        model->refresh(false, {});
    } else {
        model.reset();
    }
    QTRY_VERIFY(!combo.isOpen());
    QCOMPARE(combo.name(), road == 5 || road == 7 ? QString() : QStringLiteral("ByBlock"));
    QCOMPARE(combo.value("count").toInt(), road == 5 || road == 7 ? 0 : road == 6 ? 6 : 5);
    QCoreApplication::processEvents();
    QVERIFY(host.dialogs.log.isEmpty());
}

void TestControlsCombos::theEngineLeavesTheRowsToTheirModel()
{
    Host host;
    const auto colours = host.colours();
    const auto lineTypes = host.lineTypes();
    const auto weights = host.lineWeights();
    const auto arrowHeads = host.arrowHeads();
    QList<QPointer<QObject>> rows;
    PageEngine engine;
    const std::unique_ptr<QObject> page(engine.load(
        "QtObject { property var models; function read(): int { let count = 0; for (const model of models)\n"
        "  for (let row = 0; row < model.rowCount(); ++row) if (model.data(model.index(row, 0), 0)) ++count;\n"
        "  gc(); return count } }"));
    QVERIFY(page);
    QVariantList models;
    for (QAbstractItemModel* model :
         std::initializer_list<QAbstractItemModel*>{colours.get(), lineTypes.get(), weights.get(), arrowHeads.get()}) {
        models += QVariant::fromValue<QObject*>(model);
        for (int row = 0; row < model->rowCount(); ++row)
            rows += model->data(model->index(row, 0), 0).value<QObject*>();
    }
    page->setProperty("models", models);
    int count = 0;
    QVERIFY(QMetaObject::invokeMethod(page.get(), "read", Q_RETURN_ARG(int, count)));
    QCOMPARE(count, rows.size());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!rows.contains(nullptr));
}

void TestControlsCombos::aTipComesInAWindowOfItsOwn()
{
    Settings::instance()->setTooltipDelay(1);
    Host host;
    const auto model = host.colours();
    ShownCombo combo("ColorCombo", *model);
    QVERIFY(combo.shown().isReady());
    const auto* tip = combo.box()->findChild<QQuickWindow*>(QStringLiteral("tip"));
    QVERIFY(tip);
    const auto hover = [&](QPoint place) {
        QTest::mouseMove(combo.shown().window(), place - QPoint(2, 0));
        QTest::mouseMove(combo.shown().window(), place);
    };
    hover(combo.centreOf(combo.box()));
    QTRY_VERIFY(tip->isVisible());
    combo.open();
    QVERIFY(!tip->isVisible());
    combo.shown().press(Qt::Key_Escape);
    hover(combo.centreOf(combo.box()));
    QTRY_VERIFY(tip->isVisible());
    hover(QPoint(250, 180));
    QTRY_VERIFY(!tip->isVisible());
    Settings::instance()->setTooltips(false);
    hover(combo.centreOf(combo.box()));
    QTRY_VERIFY(combo.value("hovered").toBool());
    QVERIFY(!combo.box()->findChild<QObject*>(QStringLiteral("tipDelay"))->property("running").toBool());
    Settings::instance()->setTooltips(true);
}

int main(int argc, char** argv)
{
    return velmtest::runPageTest<TestControlsCombos>(argc, argv);
}

#include "tst_controlscombos.moc"
