#include "velm/models/menubuilder.h"

namespace velm {
MenuBuilder::MenuBuilder(MenuModel* model) : TreeBuilder(model)
{}

MenuBuilder& MenuBuilder::addItem(MenuData&& item)
{
    TreeBuilder::addItem(std::move(item));
    return *this;
}

MenuBuilder& MenuBuilder::addItem(const MenuData& item)
{
    TreeBuilder::addItem(item);
    return *this;
}

MenuBuilder& MenuBuilder::addItems(const std::vector<MenuData>& items)
{
    TreeBuilder::addItems(items);
    return *this;
}

MenuBuilder& MenuBuilder::children()
{
    TreeBuilder::children();
    return *this;
}

MenuBuilder& MenuBuilder::parent()
{
    TreeBuilder::parent();
    return *this;
}

MenuBuilder& MenuBuilder::addSeparator(SeparatorState state)
{
    if (state == AddSeparator)
        TreeBuilder::addItem(MenuData::separator());
    return *this;
}

MenuBuilder& MenuBuilder::addTitle(const QString& text)
{
    TreeBuilder::addItem(MenuData::title(text));
    return *this;
}
} // namespace velm
