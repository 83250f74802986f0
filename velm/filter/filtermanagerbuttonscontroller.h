#pragma once

#include "velm/velm_export.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QStringList>

#include <memory>

namespace velm {
/// The save and load buttons of a filter's page: it ties the tags to a property model and to a store of named filters.
/// Without both models and a store its operations do nothing. The name of the filter on display is only what the save
/// dialog proposes: neither renaming nor removing that filter changes it, or the tags.
class VELM_EXPORT FilterManagerButtonsController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject* loadFilterController READ getLoadFilterController CONSTANT)
    Q_PROPERTY(bool hasSavedFilters READ getHasSavedFilters NOTIFY numFiltersChanged)
public:
    FilterManagerButtonsController();
    ~FilterManagerButtonsController() override;

    QObject* getLoadFilterController() const;
    bool getHasSavedFilters() const;

    void open(const QString& filterName);
    /// Doesn't check the name.
    void save(const QString& filterName);
    void rename(const QString& oldName, const QString& newName);
    /// Under a name of its own choice, unique by case.
    void duplicate(const QString& filterName);
    void remove(const QString& filterName);
    QStringList getFilterList() const;

Q_SIGNALS:
    void propertiesModelChanged();
    void tagsModelChanged();
    void numFiltersChanged();

public Q_SLOTS:
    /// Not owned; an IEntityFilterPropertiesModel, or it counts as null. Makes a store for it.
    void setPropertiesModel(QAbstractItemModel* pModel);
    /// Not owned; a FilterTagsModel, or it counts as null.
    void setTagsModel(QAbstractItemModel* pModel);
    void openSaveDialog();

private:
    bool isReady() const;

    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
