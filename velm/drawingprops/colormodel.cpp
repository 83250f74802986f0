#include "velm/drawingprops/colormodel.h"

#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/idialogfactory.h"

#include <QCoreApplication>

#include <wx/gdicmn.h>

#include <algorithm>
#include <vector>

namespace velm {
namespace {
constexpr int byLayerAsBlackFlag = 4;
constexpr int whiteModeFlag = 32;

/// The viewport that is active on the current sheet; null while the model is shown.
OdDbObjectId activeViewport(const OdDbDatabase& database)
{
    if (database.getTILEMODE())
        return {};
    const auto* paperSpace = database.getPaperSpaceId().open<OdDbBlockTableRecord>();
    const auto* layout = paperSpace ? paperSpace->getLayoutId().open<OdDbLayout>() : nullptr;
    return layout ? layout->activeViewportId() : OdDbObjectId();
}
} // namespace

struct ColorModel::Pimpl
{
    using Type = ColorObject::Type;

    ColorModel& owner;
    std::vector<std::unique_ptr<ColorObject>> rows;
    QSize size;
    IGuiController& gui;
    IDialogFactory& dialogs;
    int flags;
    int currentIndex = -1;
    bool layerOverride = false;
    QColor byLayerColor;
    QColor customColor;
    QString customName;
    bool isResetting = false; // the rows come and go without signals of their own

    int count() const { return static_cast<int>(rows.size()); }
    bool isRow(int index) const { return index >= 0 && index < count(); }
    bool isVaries() const { return count() >= 2 && rows[rows.size() - 2]->getTypeAsEnum() == Type::Varies; }

    std::unique_ptr<ColorObject> standardRow(int arrayIndex) const
    {
        const ColorDescription description =
            gui.describeColor(gui.getArrayColor(arrayIndex, flags), wxFromQt(byLayerColor), layerOverride, flags);
        return std::make_unique<ColorObject>(Type::Standard, arrayIndex, toQt(description.color),
                                             toQt(description.name), description.drawDiagonal);
    }

    void build(bool varies)
    {
        rows.clear();
        if (customColor.isValid())
            rows.push_back(std::make_unique<ColorObject>(Type::Custom, 1, customColor, customName));
        for (const int arrayIndex : gui.initColorIndices(flags))
            rows.push_back(standardRow(arrayIndex));
        if (varies)
            rows.push_back(std::make_unique<ColorObject>(Type::Varies));
        rows.push_back(std::make_unique<ColorObject>(Type::Load));
    }

    void insert(int row, std::unique_ptr<ColorObject> object)
    {
        if (!isResetting)
            owner.beginInsertRows({}, row, row);
        rows.insert(rows.begin() + row, std::move(object));
        if (!isResetting)
            owner.endInsertRows();
    }

    void makeCurrent(int index)
    {
        currentIndex = index;
        Q_EMIT owner.currentItemChanged();
    }

    /// The first row of the array's colour, a new one when the host takes the colour, or 0.
    int rowOf(const OdCmColor& color, bool varies)
    {
        if (!gui.shouldInitColor(color, flags))
            return 0;
        for (int row = 0; row < count(); ++row)
            if (gui.getArrayColor(rows[static_cast<std::size_t>(row)]->colorIndex(), flags) == color)
                return row;
        const std::optional<int> arrayIndex = gui.tryAddColor(color, flags);
        if (!arrayIndex)
            return 0;
        insert(std::max(0, count() - (varies ? 2 : 1)), standardRow(*arrayIndex));
        return count() - 1;
    }
};

std::unique_ptr<IColorModel> createColorModel(IGuiController& gui, IDialogFactory& dialogs, int flags, bool varies,
                                              QSize size, QColor customColor, QString customName)
{
    return std::make_unique<ColorModel>(gui, dialogs, flags, varies, size, customColor, std::move(customName));
}

ColorModel::ColorModel(IGuiController& gui, IDialogFactory& dialogs, int flags, bool varies, QSize size,
                       QColor customColor, QString customName)
    : m_pimpl(new Pimpl{.owner = *this,
                        .rows = {},
                        .size = size,
                        .gui = gui,
                        .dialogs = dialogs,
                        .flags = flags,
                        .byLayerColor = toQt(*wxBLACK),
                        .customColor = customColor,
                        .customName = std::move(customName)})
{
    m_pimpl->build(varies);
}

ColorModel::~ColorModel() = default;

int ColorModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_pimpl->count();
}

QVariant ColorModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !m_pimpl->isRow(index.row()) || (role != Qt::DisplayRole && role != Qt::DecorationRole))
        return {};
    return QVariant::fromValue(m_pimpl->rows[static_cast<std::size_t>(index.row())].get());
}

QHash<int, QByteArray> ColorModel::roleNames() const
{
    return {{Qt::DisplayRole, "object"}, {Qt::DecorationRole, "modelData"}};
}

int ColorModel::getOrAddColor(const OdCmColor& color)
{
    const bool varies = isVaries();
    int candidate = m_pimpl->rowOf(color, varies);
    if (varies)
        candidate = m_pimpl->count();
    if (candidate >= 1 && candidate == m_pimpl->count() - 1)
        --candidate;
    return isVaries() ? m_pimpl->count() - 2 : candidate;
}

OdCmColor ColorModel::color(int index) const
{
    if ((m_pimpl->flags & whiteModeFlag) && index == 0)
        return OdCmColor::fromRGB(255, 255, 255);
    if (const ColorObject* object = getColorObject(index))
        return m_pimpl->gui.getArrayColor(object->colorIndex(), m_pimpl->flags);
    return OdCmColor(OdCmColor::kNone);
}

void ColorModel::setColor(const OdCmColor& color)
{
    beginResetModel();
    m_pimpl->isResetting = true;
    const int row = getOrAddColor(color);
    m_pimpl->isResetting = false;
    endResetModel();
    if (m_pimpl->isRow(row))
        m_pimpl->makeCurrent(row);
}

void ColorModel::setCustomColor()
{
    if (!m_pimpl->customColor.isValid())
        return;
    for (int row = 0; row < m_pimpl->count(); ++row)
        if (getColorObject(row)->getTypeAsEnum() == ColorObject::Type::Custom) {
            m_pimpl->makeCurrent(row);
            return;
        }
}

const ColorObject* ColorModel::getColorObject(int index) const
{
    return m_pimpl->isRow(index) ? m_pimpl->rows[static_cast<std::size_t>(index)].get() : nullptr;
}

ColorObject* ColorModel::getColorObject(int index)
{
    return m_pimpl->isRow(index) ? m_pimpl->rows[static_cast<std::size_t>(index)].get() : nullptr;
}

void ColorModel::setIsVaries(bool varies)
{
    if (varies == isVaries())
        return;
    if (varies && m_pimpl->count() >= 1) {
        const int row = m_pimpl->count() - 1;
        m_pimpl->insert(row, std::make_unique<ColorObject>(ColorObject::Type::Varies));
        m_pimpl->makeCurrent(row);
    } else if (!varies && m_pimpl->count() >= 2) {
        const int row = m_pimpl->count() - 2;
        beginRemoveRows({}, row, row);
        m_pimpl->rows.erase(m_pimpl->rows.begin() + row);
        endRemoveRows();
    }
}

bool ColorModel::hasFlag(int flag) const
{
    return (m_pimpl->flags & flag) != 0;
}

void ColorModel::setFlag(int flag)
{
    m_pimpl->flags |= flag;
}

void ColorModel::clearFlag(int flag)
{
    m_pimpl->flags &= ~flag;
}

void ColorModel::setByLayer(const OdDbObjectId& layerId)
{
    QColor color = Qt::black;
    if (const auto* layer = layerId.open<OdDbLayerTableRecord>()) {
        const OdDbObjectId viewport = activeViewport(*layer->database());
        const OdCmColor layerColor =
            viewport.isNull() ? layer->color() : layer->color(viewport, m_pimpl->layerOverride);
        color = QColor(layerColor.red(), layerColor.green(), layerColor.blue());
    }
    m_pimpl->byLayerColor = color;
    // The rows are described without an override, whatever the look-up said. This must stay.
    m_pimpl->layerOverride = false;
    Q_EMIT byLayerColorChanged();
}

int ColorModel::getCurrentIndex() const
{
    return m_pimpl->currentIndex;
}

void ColorModel::setCurrentIndex(int index)
{
    if (m_pimpl->isRow(index))
        m_pimpl->makeCurrent(index);
}

QColor ColorModel::byLayerColor() const
{
    return m_pimpl->byLayerColor;
}

bool ColorModel::byLayerAsBlack() const
{
    return hasFlag(byLayerAsBlackFlag);
}

bool ColorModel::isVaries() const
{
    return m_pimpl->isVaries();
}

QString ColorModel::tooltip() const
{
    return QCoreApplication::translate("ColorModel", "Color Control");
}

QSize ColorModel::size() const
{
    return m_pimpl->size;
}

int ColorModel::getColor(int index) const
{
    return m_pimpl->isRow(index) ? static_cast<int>(color(index).color()) : 0;
}

int ColorModel::flags() const
{
    return m_pimpl->flags;
}

IGuiController& ColorModel::gui() const
{
    return m_pimpl->gui;
}

std::optional<int> ColorModel::showColorDialog(int index)
{
    const OdCmColor initial = color(index);
    const int dialogFlags = m_pimpl->gui.colorComboFlagsToDialog(m_pimpl->flags, isVaries());
    const std::optional<OdCmColor> chosen =
        m_pimpl->dialogs.colorDialog(nullptr, &initial, static_cast<unsigned>(dialogFlags));
    if (!chosen)
        return {};
    setIsVaries(false);
    return getOrAddColor(*chosen);
}

void ColorModel::onClicked(int index)
{
    if (!m_pimpl->isRow(index))
        return;
    const int former = m_pimpl->currentIndex;
    const bool opensDialog = getColorObject(index)->getTypeAsEnum() == ColorObject::Type::Load;
    m_pimpl->makeCurrent(index);
    if (!opensDialog) {
        if (index != former)
            Q_EMIT colorChanged(index);
        return;
    }
    const std::optional<int> chosen = showColorDialog(former);
    m_pimpl->makeCurrent(chosen.value_or(former));
    if (chosen)
        Q_EMIT colorChanged(*chosen);
}

int ColorModel::doShowColorDialog(int currentIndex)
{
    return showColorDialog(currentIndex).value_or(currentIndex);
}

QColor ColorModel::getQColor(int index) const
{
    const ColorObject* object = getColorObject(index);
    return object ? object->color() : QColor();
}
} // namespace velm
