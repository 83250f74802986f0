#pragma once

#include "velm/models/treemodel/treemodel.h"

#include <utility>

namespace velmtest {
/// A tree of texts, shown in the first of two columns.
class StringTree : public velm::TreeModel<QString>
{
public:
    StringTree() : TreeModel(nullptr) {}
    explicit StringTree(const QString& rows) : TreeModel(nullptr) { fill(rows); }

    int columnCount(const QModelIndex& = {}) const override { return 2; }
    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const QString* text = role == Qt::DisplayRole && index.column() == 0 ? getData(index) : nullptr;
        return text ? QVariant(*text) : QVariant();
    }

    /// Appends what rowText() would give: "A(a1 a2) B".
    void fill(const QString& rows)
    {
        QModelIndex parent;
        QModelIndex last;
        QString text;
        for (const QChar character : rows + QLatin1Char(' ')) {
            if (character.isLetterOrNumber()) {
                text += character;
                continue;
            }
            if (!text.isEmpty())
                last = appendItem(parent, std::exchange(text, {}));
            if (character == QLatin1Char('('))
                parent = last;
            else if (character == QLatin1Char(')'))
                parent = parent.parent();
        }
    }

    /// A valid index that has no node.
    QModelIndex nodeless() const { return createIndex(0, 0); }
    /// The first row of that text.
    QModelIndex at(const QString& text) const
    {
        return findInTree([&](const QModelIndex& index) { return *getData(index) == text; }).value_or(QModelIndex());
    }
};
} // namespace velmtest
