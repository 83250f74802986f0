#pragma once

#include "velm/models/menumodel.h"
#include "velm/models/treemodel/treebuilder.h"

namespace velm {
/// Fills a menu in one chain of calls, as TreeBuilder does with any tree.
class VELM_EXPORT MenuBuilder : public TreeBuilder<MenuData>
{
public:
    enum class SeparatorState
    {
        NoSeparator = 0,
        AddSeparator = 1,
    };
    // For callers that write MenuBuilder::AddSeparator.
    using enum SeparatorState;

    /// The model is not owned; null throws an OdError.
    explicit MenuBuilder(MenuModel* model);

    MenuBuilder& addItem(MenuData&& item);
    MenuBuilder& addItem(const MenuData& item);
    MenuBuilder& addItems(const std::vector<MenuData>& items);
    MenuBuilder& children();
    MenuBuilder& parent();
    /// The state makes a conditional separator one link of the chain.
    MenuBuilder& addSeparator(SeparatorState state = AddSeparator);
    MenuBuilder& addTitle(const QString& text);
};
} // namespace velm
