#pragma once

#include "od/odapdocmanager.h"
#include "od/oddbobjectid.h"
#include "velm/models/propertieslistmodel.h"

#include <QObject>

#include <functional>
#include <memory>

namespace workbench {
struct ObjectField;

/// What the page of properties talks to: the list of one object's properties. Another object, and a change in what can
/// be chosen, brings another list; the former one lives until the page has let go of it.
class PropertiesController : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* properties READ properties NOTIFY changed)
    Q_PROPERTY(bool hasDrawing READ hasDrawing NOTIFY changed)
public:
    /// The documents outlive the controller.
    explicit PropertiesController(OdApDocManager& documents);
    ~PropertiesController() override;

    /// Null while no object is shown.
    velm::PropertiesListModel* properties() const { return m_properties.get(); }
    bool hasDrawing() const { return m_documents.curDocument() != nullptr; }
    OdDbObjectId object() const { return m_object; }
    /// Null, and an object without properties, shows none.
    void show(OdDbObjectId object);
    /// To call after a change of the drawing.
    void refresh();

    std::function<void()> onEdited; ///< the drawing was changed from the page

Q_SIGNALS:
    void changed();

private:
    /// A model, with deleteLater() for its end.
    struct Later
    {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

    void documentBecameCurrent(OdApDocument* document) override;
    void fill(const std::vector<ObjectField>& fields, const QString& title);
    bool update(const std::vector<ObjectField>& fields);
    void edit(const velm::PropertiesListModel& list, OdDbObjectId id, const QString& label);

    OdApDocManager& m_documents;
    OdDbObjectId m_object;
    std::unique_ptr<velm::PropertiesListModel, Later> m_properties;
    bool m_isUpdating = false;
};
} // namespace workbench
