#pragma once

#include "host/dyncmd.h"
#include "ut/smartptr.h"
#include "velm/velm_export.h"

#include <QModelIndex>

#include <vector>

namespace velm {
class MenuModel;

using ::IDynamicMenu;
using ::IDynamicMenuCommandExecutor;

/// Lets the host's command system write into a MenuModel. Entries run their command by the executor, which must outlive
/// the model.
class VELM_EXPORT ContextMenu : public IDynamicMenu
{
public:
    /// Neither is owned. The executor may be null; a null model throws an OdError. The rows go below the index; with
    /// the invalid one the model is emptied first.
    ContextMenu(IDynamicMenuCommandExecutor* executor, MenuModel* menuModel, const QModelIndex& parentIndex = {});
    ~ContextMenu() override;

    /// An icon is the name of one of the host's bitmaps: "BMP_16_Copy" is shown as "copy.png".
    void addMenuItem(const OdString& text, int commandId, const OdString& tooltip, const OdString& icon, bool enabled,
                     bool checkable, bool checked) override;
    void addMenuSeparator() override;
    std::size_t topLevelItemsCount() const override;
    std::size_t totalItemsCount() const override;
    /// Adds the row that appendSubMenu() fills in.
    std::unique_ptr<IDynamicMenu> createSubMenu() override;
    /// Turns the last row into that of the sub-menu; the icon is taken as it is. Nothing in an empty menu.
    void appendSubMenu(const OdString& text, std::unique_ptr<IDynamicMenu> subMenu, const OdString& icon) override;

private:
    std::size_t getItemsCount() const;

    IDynamicMenuCommandExecutor* m_executor; // not owned
    MenuModel* m_menuModel;                  // not owned
    QModelIndex m_parentIndex;
};

/// Has the executor write the menu, and takes away one separator at the end of each level. The targets are not read:
/// the executor knows its own.
VELM_EXPORT void buildContextMenu(IDynamicMenuCommandExecutor* executor, MenuModel* menuModel,
                                  const std::vector<TnSmartPtr<const dyncmd::DynamicCommandTarget>>& targets);
} // namespace velm
