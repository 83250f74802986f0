#pragma once

#include "velm/table/columns.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QAbstractTableModel>

/// What lies in a store.
struct Article
{
    QString name;
    int count;
    double price;
};

class StockTable : public QAbstractTableModel
{
public:
    enum Column
    {
        Name,
        Count,
        Price,
    };

    StockTable()
    {
        const auto left = Qt::AlignLeft | Qt::AlignVCenter;
        const auto right = Qt::AlignRight | Qt::AlignVCenter;
        m_columns.initialSortColumn = Name;
        m_columns.columns = {
            velm::ColumnBuilder("Name", "name").initialWidth(180).textAlignment(left).sortType(velm::SortAlphanumeric),
            velm::ColumnBuilder("Count", "count").initialWidth(80).textAlignment(right),
            velm::ColumnBuilder("Price", "price").initialWidth(80).textAlignment(right).initiallyVisible(false),
        };
    }

    void setArticles(std::vector<Article> articles)
    {
        beginResetModel();
        m_articles = std::move(articles);
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_articles.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.columns.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
            return {};
        const Article& article = m_articles[static_cast<std::size_t>(index.row())];
        switch (index.column()) {
        case Name:
            return article.name;
        case Count:
            return article.count;
        default:
            return article.price;
        }
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return velm::headerData(m_columns, section, orientation, role);
    }

private:
    velm::Columns m_columns;
    std::vector<Article> m_articles;
};

/// Shows the articles whose names contain a text.
class NameFilter : public velm::RowFilter
{
public:
    void setText(const QString& text)
    {
        m_text = text;
        Q_EMIT invalidate();
    }

    bool rowFilter(QAbstractItemModel* source, int row, QModelIndex parent) override
    {
        return source->index(row, StockTable::Name, parent).data().toString().contains(m_text, Qt::CaseInsensitive);
    }

private:
    QString m_text;
};
