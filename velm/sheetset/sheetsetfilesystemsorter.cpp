#include "velm/sheetset/sheetsetfilesystemsorter.h"

#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

namespace velm {
namespace {
/// In the C locale, which is this library's default, a collator knows neither numbers nor case.
QLocale collatingLocale()
{
    return QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale();
}
} // namespace

SheetSetFileSystemSorter::SheetSetFileSystemSorter(SheetSetFileSystemTreeModel* model)
    : m_model(model), m_collator(collatingLocale())
{
    checkNotNull(model);
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

SheetSetFileSystemSorter::~SheetSetFileSystemSorter() = default;

bool SheetSetFileSystemSorter::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const ISheetSetFileSystemTreeData* leftNode = m_model->node(left);
    const ISheetSetFileSystemTreeData* rightNode = m_model->node(right);
    if (leftNode == nullptr || rightNode == nullptr)
        return leftNode == nullptr;
    if (leftNode->isFolder() != rightNode->isFolder())
        return leftNode->isFolder();
    return m_collator.compare(leftNode->name(), rightNode->name()) < 0;
}
} // namespace velm
