#pragma once

#include "velm/velm_export.h"

#include <QImage>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <variant>

namespace velm {
/// A row of a menu: an entry, a separator or a title. What it holds is open, for the owner of the menu to change.
class VELM_EXPORT MenuData
{
public:
    /// A set of bits.
    enum EFlags : int
    {
        NoFlags = 0,
        Enabled = 1,
        Checkable = 2,
        Checked = 4,
    };
    using Command = std::variant<std::function<void()>, std::function<void(const MenuData&)>>;
    using Update = std::function<void(MenuData&)>;

    /// A separator.
    MenuData();
    /// An empty type means that of an entry. An entry that isn't checkable isn't checked either.
    MenuData(const QString& text, Command command = {}, const QString& type = {}, const QString& tooltip = {},
             const QString& icon = {}, EFlags flags = Enabled, const QVariant& userData = {}, Update update = {});
    ~MenuData();
    /// The copy has an image of its own.
    MenuData(const MenuData& other);
    MenuData(MenuData&& other) noexcept;
    MenuData& operator=(const MenuData& other);
    MenuData& operator=(MenuData&& other) noexcept;

    static MenuData separator();
    static MenuData title(const QString& text);

    static QString getDefaultItemType(); ///< "text"
    static QString getSeparatorType();   ///< "separator"
    static QString getTitleType();       ///< "title"

    // The flag's bit or none, so that flags are written as toEnabled(a) | toCheckable(b).
    static EFlags toEnabled(bool enabled) { return enabled ? Enabled : NoFlags; }
    static EFlags toCheckable(bool checkable) { return checkable ? Checkable : NoFlags; }
    static EFlags toChecked(bool checked) { return checked ? Checked : NoFlags; }
    friend constexpr EFlags operator|(EFlags left, EFlags right)
    {
        return static_cast<EFlags>(static_cast<int>(left) | static_cast<int>(right));
    }
    friend constexpr EFlags& operator|=(EFlags& left, EFlags right) { return left = left | right; }

    void setEnabled(bool enabled) { setFlag(Enabled, enabled); }
    bool isEnabled() const { return (flags & Enabled) != 0; }
    /// Keeps the mark, which doesn't count while the entry isn't checkable.
    void setCheckable(bool checkable) { setFlag(Checkable, checkable); }
    bool isCheckable() const { return (flags & Checkable) != 0; }
    /// Nothing while the entry isn't checkable.
    void setChecked(bool checked);
    bool isChecked() const { return isCheckable() && (flags & Checked) != 0; }

    /// Runs the command, if there is one.
    void execute() const;

    QString type;
    QString text; ///< with "&" before the mnemonic
    QString tooltip;
    QString icon; ///< its source
    std::unique_ptr<QImage> bitmap;
    QString extraText; ///< the library doesn't use it
    QString shortcut;  ///< as it is shown
    int menuId = -1;
    EFlags flags = Enabled;
    Command command;
    Update update; ///< brings the record up to date before the menu opens
    QVariant userData;

private:
    void setFlag(EFlags flag, bool on);
};
} // namespace velm
