#pragma once

#include "velm/velm_export.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QSortFilterProxyModel>

#include <memory>

namespace velm {
/// The popup that offers properties: their tree, a search over it and the favourites. It doesn't load the favourites by
/// itself: the page asks them to when it wants the list.
class VELM_EXPORT FilterPopupController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(const QAbstractItemModel* propertiesModel READ getPropertiesModel WRITE setPropertiesModel NOTIFY
                   propertiesModelChanged)
    Q_PROPERTY(const QObject* propertiesTreeModel READ getPropertiesTreeModel NOTIFY propertiesModelChanged)
    Q_PROPERTY(QString searchString READ getSearchString WRITE setSearchString NOTIFY searchStringChanged)
    Q_PROPERTY(const QSortFilterProxyModel* sortFilterSelectModel READ getSortFilterSelectModel CONSTANT)
    Q_PROPERTY(QAbstractItemModel* pinnedPropertiesModel READ getPinnedPropertiesModel CONSTANT)
public:
    explicit FilterPopupController(QObject* parent = nullptr);
    ~FilterPopupController() override;

    const QAbstractItemModel* getPropertiesModel() const;
    /// Not owned. A model of another class than AbstractFilterPropertiesModel counts as null. A new one throws away the
    /// favourites, and the search stays.
    void setPropertiesModel(const QAbstractItemModel* model);
    /// Null without a property model.
    const QObject* getPropertiesTreeModel() const;
    QString getSearchString() const;
    /// Doesn't notify: the search field owns its text.
    void setSearchString(const QString& text);
    const QSortFilterProxyModel* getSortFilterSelectModel() const;
    QAbstractItemModel* getPinnedPropertiesModel() const;

Q_SIGNALS:
    void propertiesModelChanged();
    void searchStringChanged();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
