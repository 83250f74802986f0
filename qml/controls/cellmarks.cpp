#include "cellmarks.h"

namespace velmqml {
void CellMarks::setModel(QAbstractItemModel* model)
{
    if (model == m_model)
        return;
    if (m_model)
        disconnect(m_model, nullptr, this, nullptr);
    m_model = model;
    m_preFocus = QModelIndex();
    if (m_model)
        connect(m_model, &QAbstractItemModel::dataChanged, this, &CellMarks::onDataChanged);
    Q_EMIT modelChanged();
}

QModelIndex CellMarks::preFocus() const
{
    return m_preFocus.data(m_preFocusRole).toBool() ? QModelIndex(m_preFocus) : QModelIndex();
}

void CellMarks::onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles)
{
    if (roles.size() != 1 || !topLeft.isValid())
        return;
    // The numbers differ from source to source.
    const int role = roles.first();
    const QByteArray name = m_model->roleNames().value(role);
    const bool isPreFocus = name == "isPreFocusCell";
    if (!isPreFocus && name != "isFocusCell" && name != "beginedit")
        return;
    for (int column = topLeft.column(); column <= bottomRight.column(); ++column) {
        const QModelIndex cell = topLeft.siblingAtColumn(column);
        if (!cell.data(role).toBool())
            continue;
        if (isPreFocus) {
            m_preFocus = cell;
            m_preFocusRole = role;
        }
        Q_EMIT marked(QString::fromLatin1(name), cell.row(), cell.column());
    }
}
} // namespace velmqml
