#pragma once

#include "drawing/selection.h"
#include "od/odapdocmanager.h"
#include "props/propertytargets.h"
#include "velm/drawingprops/iarrowheadmodel.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/drawingprops/ilinetypemodel.h"
#include "velm/drawingprops/ilineweightmodel.h"

#include <QObject>

#include <functional>
#include <memory>

namespace workbench {
/// What the bar of current properties talks to: four combos that show and set what the selected entities have or, when
/// none is selected, what new ones of the drawing get. The colours, lineweights and arrowheads come as new models when
/// the theme or the default lineweight makes other rows of them; a former one lives until its page has let go of it.
class CurrentPropertiesController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* colors READ colors NOTIFY modelsChanged)
    Q_PROPERTY(QAbstractItemModel* linetypes READ linetypes CONSTANT)
    Q_PROPERTY(QAbstractItemModel* lineWeights READ lineWeights NOTIFY modelsChanged)
    Q_PROPERTY(QAbstractItemModel* arrowheads READ arrowheads NOTIFY modelsChanged)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY changed)
    Q_PROPERTY(bool hasArrowhead READ hasArrowhead NOTIFY changed)
    Q_PROPERTY(QString subject READ subject NOTIFY changed)
    Q_PROPERTY(QString extraArrowheadName READ extraArrowheadName NOTIFY changed)
    Q_PROPERTY(QVariant extraArrowheadImage READ extraArrowheadImage NOTIFY changed)
public:
    /// All outlive the controller.
    CurrentPropertiesController(OdApDocManager& documents, Selection& selection, velm::IGuiController& gui,
                                velm::IDialogFactory& dialogs);
    ~CurrentPropertiesController() override;

    velm::IColorModel* colors() const { return m_colors.get(); }
    velm::ILineTypeModel* linetypes() const { return m_linetypes.get(); }
    velm::ILineWeightModel* lineWeights() const { return m_lineWeights.get(); }
    velm::IArrowHeadModel* arrowheads() const { return m_arrowheads.get(); }
    bool hasDrawing() const { return m_documents.curDocument() != nullptr; }
    /// False while entities are selected and none of them has one.
    bool hasArrowhead() const { return targets().hasArrowhead(); }
    /// Whose properties these are; empty without a drawing.
    QString subject() const;
    // Of the row of an arrowhead that isn't among the common ones; the name is empty without such a row.
    QString extraArrowheadName() const { return m_extraArrowhead.shownName; }
    QVariant extraArrowheadImage() const { return m_extraArrowhead.preview; }

    /// What the combo of arrowheads does, whose model leaves it to its owner.
    Q_INVOKABLE void takeArrowhead(int row);

    /// To call after a change of the drawing.
    void refresh() { show(); }
    /// To call after a change of the theme, in whose colours the rows are drawn.
    void rebuild();

    std::function<void()> onEdited; ///< the drawing was changed from a combo
    /// Whether a dialog is open: one that a combo opened still works with its model. Without it, none ever is.
    std::function<bool()> hasDialog;

Q_SIGNALS:
    void modelsChanged();
    void changed();

private:
    /// A model, with deleteLater() for its end.
    struct Later
    {
        void operator()(QObject* object) const { object->deleteLater(); }
    };
    template <typename Model>
    using Owned = std::unique_ptr<Model, Later>;

    void documentBecameCurrent(OdApDocument* document) override;
    PropertyTargets targets() const;
    void buildColors();
    void buildLineWeights();
    void buildArrowheads();
    velm::ArrowHeadRecord askForArrowhead();
    int defaultLineWeight() const;
    /// Makes the combos show what is so.
    void show();
    void showColor(const PropertyTargets& targets);
    void showLinetype(const PropertyTargets& targets);
    void showLineWeight(const PropertyTargets& targets);
    void showArrowhead(const PropertyTargets& targets);
    void setColor(int row);
    void setLinetype();
    void noteLoaded();
    void setLineWeight();
    void setArrowhead();
    void edited(bool changedSomething);

    OdApDocManager& m_documents;
    Selection& m_selection;
    velm::IGuiController& m_gui;
    velm::IDialogFactory& m_dialogs;
    Owned<velm::IColorModel> m_colors;
    std::unique_ptr<velm::ILineTypeModel> m_linetypes;
    Owned<velm::ILineWeightModel> m_lineWeights;
    Owned<velm::IArrowHeadModel> m_arrowheads;
    std::vector<velm::ArrowHeadRecord> m_commonArrowheads;
    velm::ArrowHeadRecord m_extraArrowhead;
    const OdApDocument* m_shownDocument = nullptr; // not owned; to compare with
    int m_defaultLineWeight = 0;                   // that the lineweights were built with
    bool m_isShowing = false;                      // the models' signals are echoes of this object's own doing
    bool m_isOutdated = false;                     // to be built anew once no dialog is open
};
} // namespace workbench
