#include "velm/drawingprops/lineweightmodel.h"

#include "od/oddbrecords.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"

namespace velm {
namespace {
bool isListed(int lineWeight, const LineWeightModelParams& params)
{
    switch (lineWeight) {
    case OdDb::kLnWtByBlock:
        return params.showByBlock;
    case OdDb::kLnWtByLayer:
        return params.showByLayer;
    case OdDb::kLnWtByLwDefault:
        return params.showByLwDefault;
    default:
        return true;
    }
}

double factorOf(int lineWeight, int largest)
{
    if (lineWeight == OdDb::kLnWtByBlock || lineWeight == OdDb::kLnWtByLayer || largest == 0)
        return 0.0;
    const auto& defaultWeight = externalFunctions().defaultLineWeight;
    if (lineWeight == OdDb::kLnWtByLwDefault)
        lineWeight = defaultWeight ? defaultWeight() : 0;
    return static_cast<double>(lineWeight) / largest;
}
} // namespace

std::unique_ptr<ILineWeightModel> createLineWeightModel(const IGuiController& gui, const LineWeightModelParams& params,
                                                        const QSize& size)
{
    return std::make_unique<LineWeightModel>(gui, params, size);
}

LineWeightModel::LineWeightModel(const IGuiController& gui, const LineWeightModelParams& params, const QSize& size)
    : m_size(size), m_gui(gui)
{
    const int tableSize = gui.lineWeightCount();
    if (tableSize < 1)
        return;
    const int largest = gui.lineWeightAt(tableSize - 1);
    for (int entry = 0; entry < tableSize; ++entry) {
        const int lineWeight = gui.lineWeightAt(entry);
        if (isListed(lineWeight, params))
            m_rows.push_back(std::make_unique<LineWeightObject>(toQt(gui.lineWeightName(lineWeight)),
                                                                factorOf(lineWeight, largest), lineWeight));
    }
}

LineWeightModel::~LineWeightModel() = default;

int LineWeightModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant LineWeightModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !isRow(index.row()) || role != Qt::DisplayRole)
        return {};
    LineWeightObject* object = m_rows[static_cast<std::size_t>(index.row())].get();
    if (!m_isVaries)
        object->setName(toQt(m_gui.lineWeightName(object->lineWeight())));
    return QVariant::fromValue(object);
}

QHash<int, QByteArray> LineWeightModel::roleNames() const
{
    return {{Qt::DisplayRole, "object"}};
}

void LineWeightModel::setIsVaries(bool varies)
{
    if (varies == m_isVaries)
        return;
    m_isVaries = varies;
    const int last = count() - 1;
    if (varies && last >= 0) {
        beginInsertRows({}, last + 1, last + 1);
        // Not translated, and with the number of "by default". This must stay.
        m_rows.push_back(std::make_unique<LineWeightObject>(QStringLiteral("*Varies*"), 0.0, OdDb::kLnWtByLwDefault));
        endInsertRows();
        makeCurrent(last + 1);
    } else if (!varies && last >= 1) {
        if (m_currentIndex == last)
            makeCurrent(0);
        beginRemoveRows({}, last, last);
        m_rows.pop_back();
        endRemoveRows();
    }
}

std::optional<int> LineWeightModel::indexOf(int lineWeight) const
{
    for (int index = 0; index < count(); ++index)
        if (row(index).lineWeight() == lineWeight)
            return index;
    return {};
}

std::optional<int> LineWeightModel::lineWeight(int index) const
{
    return isRow(index) ? std::optional(row(index).lineWeight()) : std::nullopt;
}

bool LineWeightModel::setCurrentIndex(int index)
{
    if (index == m_currentIndex || !isRow(index))
        return false;
    makeCurrent(index);
    return true;
}

QString LineWeightModel::tooltip() const
{
    return tr("Lineweight Control");
}

void LineWeightModel::onChangeCurrentComboIndex(int newIndex)
{
    if (setCurrentIndex(newIndex))
        Q_EMIT notifyComboUpdateManager();
}

void LineWeightModel::makeCurrent(int index)
{
    m_currentIndex = index;
    Q_EMIT currentItemChanged();
}
} // namespace velm
