#pragma once

#include "od/oddbdatabase.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/drawingprops/ilinetypemodel.h"
#include "velm/drawingprops/ilineweightmodel.h"

/// What new entities of a drawing get, for the combos of a page. The drawing outlives its stay here.
class Pen
{
public:
    Pen(velm::IGuiController& gui, velm::IDialogFactory& dialogs)
        : colors(velm::createColorModel(gui, dialogs, 1 | 2, false, QSize(16, 16), QColor(), QString())),
          lineTypes(velm::createLineTypeModel({}, gui, dialogs, QSize(64, 16), nullptr)),
          lineWeights(velm::createLineWeightModel(gui, velm::LineWeightModelParams(true, true, true), QSize(40, 14)))
    {
        QObject::connect(colors.get(), &velm::IColorModel::colorChanged, colors.get(), [this](int row) {
            if (m_drawing)
                m_drawing->setCECOLOR(colors->color(row));
        });
        QObject::connect(lineTypes.get(), &velm::ILineTypeModel::currentLineTypeChanged, lineTypes.get(), [this] {
            // The row that loads linetypes is current for a while, too; it has none.
            const auto id = lineTypes->lineTypeId(lineTypes->getCurrentIndex());
            if (m_drawing && id && !id->isNull())
                m_drawing->setCELTYPE(*id);
        });
        QObject::connect(lineWeights.get(), &velm::ILineWeightModel::notifyComboUpdateManager, lineWeights.get(),
                         [this] {
                             if (m_drawing)
                                 m_drawing->setCELWEIGHT(*lineWeights->lineWeight(lineWeights->getCurrentIndex()));
                         });
    }

    /// Shows another drawing, or the same one after a change; null for none.
    void show(OdDbDatabase* drawing)
    {
        m_drawing = nullptr; // nobody is to be told of what follows
        setIsVaries(false);
        lineTypes->setDatabase(false, drawing);
        if (!drawing)
            return;
        colors->setByLayer(drawing->currentLayer());
        colors->setColor(drawing->getCECOLOR());
        lineTypes->setCurrentLineType(drawing->getCELTYPE());
        lineWeights->setCurrentIndex(lineWeights->indexOf(drawing->getCELWEIGHT()).value_or(0));
        m_drawing = drawing;
    }

    /// Shows that the selected entities differ.
    void setIsVaries(bool varies)
    {
        colors->setIsVaries(varies);
        lineTypes->setIsVaries(varies);
        lineTypes->refresh(false, {});
        lineWeights->setIsVaries(varies);
    }

    const std::unique_ptr<velm::IColorModel> colors;
    const std::unique_ptr<velm::ILineTypeModel> lineTypes;
    const std::unique_ptr<velm::ILineWeightModel> lineWeights;

private:
    OdDbDatabase* m_drawing = nullptr; // not owned
};
