#pragma once

#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QObject>

#include <memory>

namespace velm {
class FilterManagerButtonsController;

/// The popup that lists the saved filters, with a small menu for each. The list is read anew by refreshFilterList().
class VELM_EXPORT LoadFilterController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractListModel* filterListModel READ getFilterListModel CONSTANT)
    Q_PROPERTY(QAbstractItemModel* menuModel READ getMenuModel CONSTANT)
public:
    /// The buttons own it.
    explicit LoadFilterController(FilterManagerButtonsController& buttons);
    ~LoadFilterController() override;

    QAbstractListModel* getFilterListModel() const;
    QAbstractItemModel* getMenuModel() const;

Q_SIGNALS:
    /// The list is to be shown again.
    void openPopup();

public Q_SLOTS:
    void refreshFilterList();
    /// Makes the menu of one filter.
    void refreshMenuModel(QString filterName);
    void selectFilter(QString filterName);

private:
    void renameFilter(const QString& oldName);
    void removeFilter(const QString& filterName);

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
