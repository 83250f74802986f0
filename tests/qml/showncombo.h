#pragma once

#include "od/oddbdatabase.h"
#include "shownpage.h"
#include "support/fakehost.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/arrowheadmodel.h"
#include "velm/drawingprops/colormodel.h"
#include "velm/drawingprops/linetypemodel.h"
#include "velm/drawingprops/lineweightmodel.h"

#include <QWheelEvent>

#include <wx/bitmap.h>
#include <wx/image.h>

namespace velmtest {
/// A host with the usual colours, four linetypes and as many lineweights as asked for.
class ComboHost
{
public:
    FakeGuiController gui;
    FakeDialogFactory dialogs;
    std::shared_ptr<OdDbDatabase> drawing = std::make_shared<OdDbDatabase>();
    QString unit = QStringLiteral("mm");
    int weights = 5;
    wxColour ground = wxColour(255, 0, 255);

    ComboHost()
    {
        gui.describe = [](const OdCmColor& color, wxColour, bool, int) {
            static const char* const names[] = {"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta", "White"};
            velm::ColorDescription description;
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
                table.emplace_back(weight * 25, velm::odFromQt(QStringLiteral("%1 %2").arg(weight * 25).arg(unit)));
            return table;
        };
        gui.lineTypes = [](OdDbDatabase* database, bool, OdDbObjectId&, bool, velm::LoadedLineTypes& loaded) {
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
    std::unique_ptr<velm::ColorModel> colours(bool varies = false, int flags = 3)
    {
        return std::make_unique<velm::ColorModel>(gui, dialogs, flags, varies, QSize(16, 16), QColor(), QString());
    }
    /// ByBlock, ByLayer, Continuous, Dashed, load.
    std::unique_ptr<velm::LineTypeModel> lineTypes()
    {
        const velm::LineTypeModelParams params{drawing.get(), 0, 0};
        return std::make_unique<velm::LineTypeModel>(params, gui, dialogs, QSize(60, 14), nullptr);
    }
    /// ByLayer, 0, 25, 50 ... mm.
    std::unique_ptr<velm::LineWeightModel> lineWeights()
    {
        return std::make_unique<velm::LineWeightModel>(gui, velm::LineWeightModelParams(true, true, false), QSize());
    }
    /// Closed, Dot, [the extra one,] load.
    std::unique_ptr<velm::ArrowHeadModel> arrowHeads(bool extra = false)
    {
        velm::ArrowHeadModelParams params;
        params.records = {{QStringLiteral("_CLOSEDFILLED"), QStringLiteral("Closed"), picture(Qt::red)},
                          {QStringLiteral("_DOT"), QStringLiteral("Dot"), picture(Qt::green)}};
        if (extra)
            params.extra = {QStringLiteral("Mine"), QStringLiteral("Mine"), {}};
        params.chooser = [this] { return chosenArrowHead; };
        return std::make_unique<velm::ArrowHeadModel>(params, gui, dialogs, QSize(32, 16), nullptr);
    }
    static QImage picture(const QColor& color)
    {
        QImage image(32, 16, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }

    velm::ArrowHeadRecord chosenArrowHead;
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
        const auto* label = rowItem(row)->findChild<QQuickItem*>(QStringLiteral("comboName"));
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
} // namespace velmtest
