#pragma once

#include "filter/entityfilterproperties.h"
#include "filter/entitymatcher.h"
#include "od/odapdocmanager.h"
#include "velm/filter/filtermanagerbuttonscontroller.h"
#include "velm/filter/filterpopupcontroller.h"
#include "velm/filter/filtertagsmodel.h"

#include <QTimer>

namespace workbench {
class Selection;

/// What the page of the filter talks to. At each change of the filter, what it finds in the current drawing is counted
/// and told, to be lit up; it becomes the selection as soon as the changes pause, since much follows a selection.
/// Picking something else afterwards leaves the filter as it is.
class FilterController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* tags READ tags CONSTANT)
    Q_PROPERTY(QAbstractItemModel* properties READ properties CONSTANT)
    Q_PROPERTY(QObject* popup READ popup CONSTANT)
    Q_PROPERTY(QObject* buttons READ buttons CONSTANT)
    Q_PROPERTY(QString status READ status NOTIFY matchesChanged)
    Q_PROPERTY(bool canSelect READ canSelect NOTIFY matchesChanged)
public:
    /// Both outlive the controller. The host has stored the functions that make properties and stores.
    FilterController(OdApDocManager& documents, Selection& selection);
    ~FilterController() override;

    velm::FilterTagsModel* tags() { return &m_tags; }
    velm::IEntityFilterPropertiesModel* properties() { return m_properties.get(); }
    velm::FilterPopupController* popup() { return &m_popup; }
    velm::FilterManagerButtonsController* buttons() { return &m_buttons; }
    /// How many entities match; empty without a drawing or a condition.
    QString status() const;
    bool canSelect() const { return !m_matches.empty(); }
    const std::vector<OdDbObjectId>& matches() const { return m_matches; }

    /// To call after a change of the drawing: counts anew and leaves the selection alone.
    void refresh();

public Q_SLOTS:
    /// Selects what matches, once more.
    void selectMatches();

Q_SIGNALS:
    void matchesChanged();
    /// The filter was changed; matches() is what will be selected.
    void matchesFound();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    void watchConjunctions();
    bool hasConditions() const;
    void findMatches();
    void applyFilter();

    OdApDocManager& m_documents;
    Selection& m_selection;
    std::shared_ptr<EntityFilterProperties> m_properties;
    EntityMatcher m_matcher;
    velm::FilterTagsModel m_tags;
    velm::FilterPopupController m_popup;
    velm::FilterManagerButtonsController m_buttons;
    QTimer m_filterChanged{this}; // once for all signals of one change
    QTimer m_changesPaused{this};
    std::vector<OdDbObjectId> m_matches;
    bool m_areRecordsStale = true;
};
} // namespace workbench
