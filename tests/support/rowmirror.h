#pragma once

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>

namespace velmtest {
/// Watches a flat model that the model tester takes for a faulty one: it counts rows whatever the parent, uses the
/// numbers of Qt's roles anew, or has objects in role 0. The tester sees role 0 alone through a proxy, objects as their
/// addresses. Besides, it keeps the rows as a view knows them, from signals alone: an insert inside a reset, a wrong
/// row or a forgotten signal makes them differ from the model's.
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
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& first, const QModelIndex& last) {
                    for (int row = first.row(); row <= last.row(); ++row)
                        m_rows[row] = index(row, 0).data().toString();
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

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::rowCount();
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
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
