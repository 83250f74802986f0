#pragma once

#include "velm/table/rowfilter.h"

#include <QString>

#include <vector>

namespace workbench {
/// Shows the rows that contain a text, without regard to case, in one of some columns; an empty text shows all.
class ContainsFilter : public velm::RowFilter
{
    Q_OBJECT
public:
    explicit ContainsFilter(std::vector<int> columns, QObject* parent = nullptr);

    void setText(const QString& text);
    bool rowFilter(QAbstractItemModel* sourceModel, int sourceRow, QModelIndex parent) override;

private:
    const std::vector<int> m_columns;
    QString m_text;
};
} // namespace workbench
