#include "props/currentpropertiescontroller.h"

#include "drawing/entitykind.h"
#include "host/themecolours.h"
#include "props/arrowheaddialogcontroller.h"
#include "props/arrowheadrecords.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/drawingprops/colorobject.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cstdlib>

namespace workbench {
namespace {
constexpr int trueColors = 1;
constexpr int byLayerAndByBlock = 2;
constexpr QSize swatchSize(14, 14);
constexpr QSize linetypeSize(64, 16);
constexpr QSize lineWeightSize(40, 16);
constexpr QSize arrowheadSize(32, 16);

QColor arrowheadColor()
{
    return qtGuiColour(ut::EGuiColor::Grey10);
}

/// The row of a lineweight, or of the one that comes nearest where a drawing has one that the table doesn't know.
int lineWeightRow(const velm::ILineWeightModel& model, int lineWeight)
{
    if (const std::optional<int> row = model.indexOf(lineWeight))
        return *row;
    int nearest = 0;
    for (int row = 0; row < model.rowCount(); ++row)
        if (std::abs(*model.lineWeight(row) - lineWeight) < std::abs(*model.lineWeight(nearest) - lineWeight))
            nearest = row;
    return nearest;
}
} // namespace

CurrentPropertiesController::CurrentPropertiesController(OdApDocManager& documents, Selection& selection,
                                                         velm::IGuiController& gui, velm::IDialogFactory& dialogs)
    : m_documents(documents), m_selection(selection), m_gui(gui), m_dialogs(dialogs)
{
    const OdApDocument* document = m_documents.curDocument();
    m_linetypes = velm::createLineTypeModel({document ? document->database() : nullptr, 0, 0}, m_gui, m_dialogs,
                                            linetypeSize, [this] { return &m_documents; });
    connect(m_linetypes.get(), &velm::ILineTypeModel::currentLineTypeChanged, this,
            &CurrentPropertiesController::setLinetype);
    connect(m_linetypes.get(), &QAbstractItemModel::modelReset, this, &CurrentPropertiesController::noteLoaded);
    buildColors();
    buildLineWeights();
    buildArrowheads();
    connect(&m_selection, &Selection::changed, this, &CurrentPropertiesController::show);
    // After the linetypes, which have changed to the drawing by then.
    m_documents.addReactor(this);
    m_shownDocument = document;
    show();
}

CurrentPropertiesController::~CurrentPropertiesController()
{
    m_documents.removeReactor(this);
}

QString CurrentPropertiesController::subject() const
{
    if (!hasDrawing())
        return {};
    const PropertyTargets present = targets();
    const std::vector<OdDbEntity*>& entities = present.entities();
    if (entities.empty())
        return tr("New entities");
    return entities.size() == 1 ? velm::toQt(entityKind(*entities.front())) : tr("%1 entities").arg(entities.size());
}

PropertyTargets CurrentPropertiesController::targets() const
{
    const OdApDocument* document = m_documents.curDocument();
    return {document ? document->database() : nullptr, m_selection.entities()};
}

void CurrentPropertiesController::buildColors()
{
    m_colors.reset(
        velm::createColorModel(m_gui, m_dialogs, trueColors | byLayerAndByBlock, false, swatchSize, {}, {}).release());
    connect(m_colors.get(), &velm::IColorModel::colorChanged, this, &CurrentPropertiesController::setColor);
}

void CurrentPropertiesController::buildLineWeights()
{
    m_defaultLineWeight = defaultLineWeight();
    m_lineWeights.reset(velm::createLineWeightModel(m_gui, {true, true, true}, lineWeightSize).release());
    connect(m_lineWeights.get(), &velm::ILineWeightModel::notifyComboUpdateManager, this,
            &CurrentPropertiesController::setLineWeight);
}

void CurrentPropertiesController::buildArrowheads()
{
    m_commonArrowheads = arrowheadRecords(arrowheadSize, arrowheadColor());
    if (!m_extraArrowhead.internalName.isEmpty())
        m_extraArrowhead = arrowheadRecord(m_extraArrowhead.internalName, arrowheadSize, arrowheadColor());
    // A reactor it is in name alone, and it may end after the documents.
    m_arrowheads.reset(
        velm::createArrowHeadModel({m_commonArrowheads, m_extraArrowhead, 0, [this] { return askForArrowhead(); }},
                                   m_gui, m_dialogs, arrowheadSize, {})
            .release());
    connect(m_arrowheads.get(), &velm::IArrowHeadModel::currentArrowHeadChanged, this,
            &CurrentPropertiesController::setArrowhead);
}

velm::ArrowHeadRecord CurrentPropertiesController::askForArrowhead()
{
    const OdApDocument* document = m_documents.curDocument();
    if (!document)
        return {};
    const velm::ArrowHeadRecord chosen = chooseArrowhead(
        nullptr, document->database(), targets().arrowhead().value_or(QString()), arrowheadSize, arrowheadColor());
    // The drawing may be closed meanwhile.
    return m_documents.curDocument() == document ? chosen : velm::ArrowHeadRecord();
}

int CurrentPropertiesController::defaultLineWeight() const
{
    const OdApDocument* document = m_documents.curDocument();
    return document ? document->database()->getLWDEFAULT() : m_defaultLineWeight;
}

void CurrentPropertiesController::rebuild()
{
    m_isOutdated = hasDialog && hasDialog();
    if (m_isOutdated)
        return;
    // Held until the page has the new ones.
    const Owned<velm::IColorModel> colors = std::move(m_colors);
    const Owned<velm::ILineWeightModel> lineWeights = std::move(m_lineWeights);
    const Owned<velm::IArrowHeadModel> arrowheads = std::move(m_arrowheads);
    buildColors();
    buildLineWeights();
    buildArrowheads();
    show();
    Q_EMIT modelsChanged();
}

void CurrentPropertiesController::documentBecameCurrent(OdApDocument* document)
{
    m_shownDocument = document;
    // Another drawing may have no block of that name.
    const bool hadExtra = !m_extraArrowhead.internalName.isEmpty();
    m_extraArrowhead = {};
    if (hadExtra || defaultLineWeight() != m_defaultLineWeight)
        rebuild();
    show();
}

void CurrentPropertiesController::show()
{
    if (m_isShowing)
        return;
    if (m_isOutdated && !hasDialog()) {
        rebuild();
        return;
    }
    const QScopedValueRollback showing(m_isShowing, true);
    const PropertyTargets shown = targets();
    showColor(shown);
    showLinetype(shown);
    showLineWeight(shown);
    showArrowhead(shown);
    Q_EMIT changed();
}

void CurrentPropertiesController::showColor(const PropertyTargets& targets)
{
    const std::optional<OdCmColor> color = targets.color();
    m_colors->setByLayer(targets.layer());
    m_colors->setIsVaries(!color && !targets.isNone());
    // While the model varies, this goes to the row that says so.
    m_colors->setColor(color.value_or(OdCmColor()));
}

void CurrentPropertiesController::showLinetype(const PropertyTargets& targets)
{
    const std::optional<OdDbObjectId> linetype = targets.linetype();
    m_linetypes->setIsVaries(!linetype && !targets.isNone());
    // A model whose dialog is open still goes by its rows, and builds them anew by itself.
    if (!hasDialog || !hasDialog())
        m_linetypes->refresh(false, {});
    if (linetype)
        m_linetypes->setCurrentLineType(*linetype);
}

void CurrentPropertiesController::showLineWeight(const PropertyTargets& targets)
{
    const std::optional<int> lineWeight = targets.lineWeight();
    m_lineWeights->setIsVaries(!lineWeight && !targets.isNone());
    const int last = m_lineWeights->rowCount() - 1;
    m_lineWeights->setCurrentIndex(
        m_lineWeights->isVaries() ? last : lineWeightRow(*m_lineWeights, lineWeight.value_or(OdDb::kLnWtByLayer)));
    // A row takes over the present name of its weight when it is asked for.
    for (int row = 0; row <= last; ++row)
        m_lineWeights->index(row, 0).data();
}

void CurrentPropertiesController::showArrowhead(const PropertyTargets& targets)
{
    const std::optional<QString> arrowhead = targets.arrowhead();
    const auto isShown = [&](const velm::ArrowHeadRecord& record) { return record.internalName == arrowhead; };
    if (!arrowhead) {
        m_arrowheads->setCurrentIndex(-1);
        return;
    }
    if (std::ranges::none_of(m_commonArrowheads, isShown) && !isShown(m_extraArrowhead)) {
        m_isOutdated = hasDialog && hasDialog();
        if (m_isOutdated)
            return;
        const Owned<velm::IArrowHeadModel> former = std::move(m_arrowheads);
        m_extraArrowhead.internalName = *arrowhead;
        buildArrowheads();
        Q_EMIT modelsChanged();
    }
    m_arrowheads->selectArrowHead(*arrowhead);
}

void CurrentPropertiesController::setColor(int row)
{
    // The row of several colours stands for none that could be set.
    const bool isColor = m_colors->getColorObject(row)->getTypeAsEnum() != velm::ColorObject::Type::Varies;
    edited(isColor && targets().setColor(m_colors->color(row)));
}

void CurrentPropertiesController::setLinetype()
{
    // Rows that are no linetypes: a dialog may be about to open, after which the model finds its row by itself.
    const std::optional<OdDbObjectId> linetype = m_linetypes->lineTypeId(m_linetypes->getCurrentIndex());
    if (!m_isShowing && linetype && !linetype->isNull())
        edited(targets().setLinetype(*linetype));
}

void CurrentPropertiesController::noteLoaded()
{
    // The model has other rows for the same drawing, and not by this object: linetypes were loaded.
    if (!m_isShowing && m_linetypes->rowCount() > 0 && m_documents.curDocument() == m_shownDocument)
        edited(true);
}

void CurrentPropertiesController::setLineWeight()
{
    const int row = m_lineWeights->getCurrentIndex();
    const bool isWeight = !m_lineWeights->isVaries() || row < m_lineWeights->rowCount() - 1;
    edited(isWeight && targets().setLineWeight(*m_lineWeights->lineWeight(row)));
}

void CurrentPropertiesController::takeArrowhead(int row)
{
    // Neither no row nor that of the dialog.
    if (row >= 0 && row < m_arrowheads->rowCount() - 1)
        m_arrowheads->setCurrentIndex(row);
}

void CurrentPropertiesController::setArrowhead()
{
    const int row = m_arrowheads->property("currentIndex").toInt();
    if (m_isShowing || row < 0)
        return;
    const velm::ArrowHeadRecord& chosen = m_arrowheads->currentArrowHead();
    if (row == static_cast<int>(m_commonArrowheads.size()))
        m_extraArrowhead = chosen;
    edited(targets().setArrowhead(chosen.internalName));
}

void CurrentPropertiesController::edited(bool changedSomething)
{
    if (changedSomething && onEdited)
        onEdited();
    show();
}
} // namespace workbench
