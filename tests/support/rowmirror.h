#pragma once

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>

namespace velmtest {
/// Watches a flat model whose role 0 is an object, which the model tester takes for a fault: the tester sees it through
/// a proxy with the objects' addresses. Besides, it keeps the rows as a view knows them, from signals alone: an insert
/// inside a reset, a wrong row or a forgotten signal makes them differ from the model's.
class RowMirror : public QIdentityProxyModel
{
public:
    explicit RowMirror(QAbstractItemModel& model)
    {
        setSourceModel(&model);
        m_rows = read();
        connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_isResetting = true; });
        connect(&model, &QAbstractItemModel::modelReset, this, [this] {
            m_isResetting = false;
            m_rows = read();
        });
        connect(&model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
            m_isRight &= !m_isResetting;
            for (int row = first; row <= last; ++row)
                m_rows.insert(row, index(row, 0).data().toString());
        });
        connect(&model, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
            m_isRight &= !m_isResetting;
            m_rows.remove(first, last - first + 1);
        });
    }

    bool isRight() const { return m_isRight && !m_isResetting && m_rows == read(); }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const QVariant value = QIdentityProxyModel::data(index, role);
        return value.canConvert<QObject*>() ? QString::number(quintptr(value.value<QObject*>()), 16) : value;
    }

private:
    QStringList read() const
    {
        QStringList rows;
        for (int row = 0; row < rowCount(); ++row)
            rows += index(row, 0).data().toString();
        return rows;
    }

    QAbstractItemModelTester m_tester{this, QAbstractItemModelTester::FailureReportingMode::QtTest};
    QStringList m_rows;
    bool m_isResetting = false;
    bool m_isRight = true;
};
} // namespace velmtest
