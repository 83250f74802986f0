#pragma once

#include <QAbstractItemModel>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace velmqml {
/// Tells a page of the single cells that a table proxy marks by its roles: "isPreFocusCell", "isFocusCell" and
/// "beginedit". A delegate sees these roles too, but it may not be there yet, and it doesn't see a mark that is set
/// once more.
class CellMarks : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel* model READ model WRITE setModel NOTIFY modelChanged)
public:
    using QObject::QObject;

    QAbstractItemModel* model() const { return m_model; }
    void setModel(QAbstractItemModel* model);

    /// The cell under the keyboard's cursor; invalid when there is none.
    Q_INVOKABLE QModelIndex preFocus() const;

Q_SIGNALS:
    void modelChanged();
    void marked(const QString& role, int row, int column);

private:
    void onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles);

    QPointer<QAbstractItemModel> m_model;
    QPersistentModelIndex m_preFocus; ///< the last cell that was marked
    int m_preFocusRole = -1;
};
} // namespace velmqml
