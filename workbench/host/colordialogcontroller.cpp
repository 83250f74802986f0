#include "host/colordialogcontroller.h"

#include "host/colordescription.h"
#include "velm/bridge/conversions.h"

#include <QRegularExpression>

#include <algorithm>

namespace workbench {
namespace {
constexpr unsigned byLayerAndByBlockFlag = 1;
constexpr unsigned byLayerAsBlackFlag = 2;
constexpr unsigned noTrueColorsFlag = 8;
constexpr unsigned variesFlag = 16;
constexpr unsigned noneFlag = 64;
} // namespace

ColorDialogController::ColorDialogController(const OdCmColor* initial, unsigned flags) : m_flags(flags)
{
    // Of several colours none is the present one.
    if (flags & variesFlag)
        m_formerName = tr("*Varies*");
    else if (initial && allows(*initial))
        m_chosen = *initial;
    if (m_chosen)
        m_formerName = name();
    m_formerColor = color();
}

bool ColorDialogController::hasByLayer() const
{
    return m_flags & (byLayerAndByBlockFlag | byLayerAsBlackFlag);
}

bool ColorDialogController::hasByBlock() const
{
    return m_flags & byLayerAndByBlockFlag;
}

bool ColorDialogController::hasNone() const
{
    return m_flags & noneFlag;
}

bool ColorDialogController::hasTrueColors() const
{
    return !(m_flags & noTrueColorsFlag);
}

bool ColorDialogController::allows(const OdCmColor& color) const
{
    if (color.isByACI())
        return color.colorIndex() >= 1 && color.colorIndex() <= 255;
    return (color.isByLayer() && hasByLayer()) || (color.isByBlock() && hasByBlock()) ||
           (color.isNone() && hasNone()) || (color.isByColor() && hasTrueColors());
}

void ColorDialogController::choose(const OdCmColor& color)
{
    if (!allows(color) || m_chosen == color)
        return;
    m_chosen = color;
    Q_EMIT changed();
}

velm::ColorDescription ColorDialogController::describe(const OdCmColor& color) const
{
    constexpr int comboByLayerAsBlack = 4;
    return describeColor(color, {}, false, m_flags & byLayerAsBlackFlag ? comboByLayerAsBlack : 0);
}

QString ColorDialogController::byLayerName() const
{
    return nameOf(OdCmColor::kACIbyLayer);
}

QString ColorDialogController::name() const
{
    return m_chosen ? velm::toQt(describe(*m_chosen).name) : QString();
}

QColor ColorDialogController::color() const
{
    return m_chosen ? velm::toQt(describe(*m_chosen).color) : QColor(Qt::transparent);
}

int ColorDialogController::index() const
{
    return m_chosen && !m_chosen->isByColor() ? m_chosen->colorIndex() : -1;
}

void ColorDialogController::setIndex(int index)
{
    if (index >= 0 && index <= OdCmColor::kACInone)
        choose(OdCmColor::fromIndex(static_cast<std::uint16_t>(index)));
}

void ColorDialogController::setChannels(int red, int green, int blue)
{
    const auto channel = [](int value) { return static_cast<std::uint8_t>(std::clamp(value, 0, 255)); };
    choose(OdCmColor::fromRGB(channel(red), channel(green), channel(blue)));
}

bool ColorDialogController::setHex(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^\\s*#?([0-9A-Fa-f]{6})\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return false;
    const int rgb = match.captured(1).toInt(nullptr, 16);
    setChannels(rgb >> 16, (rgb >> 8) & 0xFF, rgb & 0xFF);
    return true;
}

QColor ColorDialogController::colorOf(int index) const
{
    return velm::toQt(describe(OdCmColor::fromIndex(static_cast<std::uint16_t>(index))).color);
}

QString ColorDialogController::nameOf(int index) const
{
    return velm::toQt(describe(OdCmColor::fromIndex(static_cast<std::uint16_t>(index))).name);
}
} // namespace workbench
