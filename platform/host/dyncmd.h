#pragma once

#include "od/odstring.h"
#include "platform_export.h"

#include <cstddef>
#include <memory>

/// A menu that the host writes. The order of the operations is part of the interface.
class PLATFORM_EXPORT IDynamicMenu
{
public:
    virtual ~IDynamicMenu();

    virtual void addMenuItem(const OdString& text, int commandId, const OdString& tooltip, const OdString& icon,
                             bool enabled, bool checkable, bool checked) = 0;
    virtual void addMenuSeparator() = 0;
    virtual std::size_t topLevelItemsCount() const = 0;
    /// Rows at every depth.
    virtual std::size_t totalItemsCount() const = 0;
    /// The sub-menu is written and then handed back with appendSubMenu(), before anything else comes into this menu.
    virtual std::unique_ptr<IDynamicMenu> createSubMenu() = 0;
    virtual void appendSubMenu(const OdString& text, std::unique_ptr<IDynamicMenu> subMenu, const OdString& icon) = 0;
};

/// The host's command system as a menu sees it: it writes the menu and runs what is chosen from it.
class PLATFORM_EXPORT IDynamicMenuCommandExecutor
{
public:
    virtual ~IDynamicMenuCommandExecutor();

    virtual void executeMenuCommand(int commandId) = 0;
    virtual void fillMenu(IDynamicMenu& menu) = 0;
};

namespace dyncmd {
/// Something that the commands of a menu are about.
class PLATFORM_EXPORT DynamicCommandTarget
{
public:
    virtual ~DynamicCommandTarget();
};
} // namespace dyncmd
