#include "velm/models/menudata.h"

namespace velm {
MenuData::MenuData() : type(getSeparatorType())
{}

MenuData::MenuData(const QString& text, Command command, const QString& type, const QString& tooltip,
                   const QString& icon, EFlags flags, const QVariant& userData, Update update)
    : type(type.isEmpty() ? getDefaultItemType() : type), text(text), tooltip(tooltip), icon(icon), flags(flags),
      command(std::move(command)), update(std::move(update)), userData(userData)
{
    if (!isCheckable())
        setFlag(Checked, false);
}

MenuData::~MenuData() = default;

MenuData::MenuData(const MenuData& other)
    : type(other.type), text(other.text), tooltip(other.tooltip), icon(other.icon),
      bitmap(other.bitmap ? std::make_unique<QImage>(other.bitmap->copy()) : nullptr), extraText(other.extraText),
      shortcut(other.shortcut), menuId(other.menuId), flags(other.flags), command(other.command), update(other.update),
      userData(other.userData)
{}

MenuData::MenuData(MenuData&& other) noexcept = default;

MenuData& MenuData::operator=(const MenuData& other)
{
    return *this = MenuData(other);
}

MenuData& MenuData::operator=(MenuData&& other) noexcept = default;

MenuData MenuData::separator()
{
    return MenuData();
}

MenuData MenuData::title(const QString& text)
{
    return MenuData(text, {}, getTitleType());
}

QString MenuData::getDefaultItemType()
{
    return QStringLiteral("text");
}

QString MenuData::getSeparatorType()
{
    return QStringLiteral("separator");
}

QString MenuData::getTitleType()
{
    return QStringLiteral("title");
}

void MenuData::setFlag(EFlags flag, bool on)
{
    flags = static_cast<EFlags>(on ? flags | flag : flags & ~flag);
}

void MenuData::setChecked(bool checked)
{
    if (isCheckable())
        setFlag(Checked, checked);
}

void MenuData::execute() const
{
    if (const auto* plain = std::get_if<std::function<void()>>(&command)) {
        if (*plain)
            (*plain)();
    } else if (const auto& withData = std::get<std::function<void(const MenuData&)>>(command)) {
        withData(*this);
    }
}
} // namespace velm
