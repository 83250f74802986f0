#include "velm/models/contextmenu.h"

#include "velm/bridge/conversions.h"
#include "velm/models/menumodel.h"
#include "velm/models/treemodel/treebuilder.h"

namespace velm {
namespace {
/// The file of one of the host's bitmaps.
QString iconFile(const OdString& bitmap)
{
    const QLatin1String prefix("BMP_16_");
    QString name = toQt(bitmap);
    if (name.isEmpty())
        return name;
    if (name.startsWith(prefix))
        name.remove(0, prefix.size());
    return name.toLower() + QLatin1String(".png");
}

MenuData subMenuData(const QString& text, const QString& icon)
{
    return {text, {}, QStringLiteral("submenu"), {}, icon};
}
} // namespace

ContextMenu::ContextMenu(IDynamicMenuCommandExecutor* executor, MenuModel* menuModel, const QModelIndex& parentIndex)
    : m_executor(executor), m_menuModel(menuModel), m_parentIndex(parentIndex)
{
    checkNotNull(menuModel);
    if (parentIndex == QModelIndex())
        m_menuModel->reset();
}

ContextMenu::~ContextMenu() = default;

void ContextMenu::addMenuItem(const OdString& text, int commandId, const OdString& tooltip, const OdString& icon,
                              bool enabled, bool checkable, bool checked)
{
    const auto command = [executor = m_executor, commandId] {
        if (executor)
            executor->executeMenuCommand(commandId);
    };
    const MenuData::EFlags flags =
        MenuData::toEnabled(enabled) | MenuData::toCheckable(checkable) | MenuData::toChecked(checked);
    m_menuModel->appendItem(m_parentIndex, MenuData(toQt(text), command, MenuData::getDefaultItemType(), toQt(tooltip),
                                                    iconFile(icon), flags));
}

void ContextMenu::addMenuSeparator()
{
    m_menuModel->appendItem(m_parentIndex, MenuData::separator());
}

std::size_t ContextMenu::topLevelItemsCount() const
{
    return static_cast<std::size_t>(m_menuModel->rowCount(m_parentIndex));
}

std::size_t ContextMenu::totalItemsCount() const
{
    return getItemsCount();
}

std::size_t ContextMenu::getItemsCount() const
{
    std::size_t count = 0;
    std::vector<QModelIndex> open{m_parentIndex};
    while (!open.empty()) {
        const QList<QModelIndex> rows = m_menuModel->children(open.back());
        open.pop_back();
        count += static_cast<std::size_t>(rows.size());
        open.insert(open.end(), rows.begin(), rows.end());
    }
    return count;
}

std::unique_ptr<IDynamicMenu> ContextMenu::createSubMenu()
{
    const QModelIndex row = m_menuModel->appendItem(m_parentIndex, subMenuData({}, {}));
    return std::make_unique<ContextMenu>(m_executor, m_menuModel, row);
}

void ContextMenu::appendSubMenu(const OdString& text, std::unique_ptr<IDynamicMenu>, const OdString& icon)
{
    const std::optional<QModelIndex> last = m_menuModel->child(m_parentIndex, m_menuModel->rowCount(m_parentIndex) - 1);
    if (last && last->isValid())
        m_menuModel->setData(*last, subMenuData(toQt(text), toQt(icon)));
}

void buildContextMenu(IDynamicMenuCommandExecutor* executor, MenuModel* menuModel,
                      const std::vector<TnSmartPtr<const dyncmd::DynamicCommandTarget>>&)
{
    ContextMenu menu(executor, menuModel);
    if (executor)
        executor->fillMenu(menu);
    menuModel->traverseTree([menuModel](const QModelIndex& index) {
        const QModelIndex parent = index.parent();
        const bool isLast = index.row() == menuModel->rowCount(parent) - 1;
        if (!isLast || menuModel->getData(index)->type != MenuData::getSeparatorType())
            return TreeWalk::Continue;
        menuModel->deleteItem(parent, index);
        return TreeWalk::SkipChildren;
    });
}
} // namespace velm
