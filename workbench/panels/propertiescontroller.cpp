#include "panels/propertiescontroller.h"

#include "panels/objectfields.h"

#include <QScopedValueRollback>

namespace workbench {
using velm::PropertiesListModel;

PropertiesController::PropertiesController(OdApDocManager& documents) : m_documents(documents)
{
    m_documents.addReactor(this);
}

PropertiesController::~PropertiesController()
{
    m_documents.removeReactor(this);
}

void PropertiesController::documentBecameCurrent(OdApDocument*)
{
    m_object = OdDbObjectId::kNull;
    fill({}, {});
}

void PropertiesController::show(OdDbObjectId object)
{
    if (object == m_object)
        return;
    m_object = object;
    OdDbObject* opened = m_object.openObject();
    fill(opened ? objectFields(*opened) : std::vector<ObjectField>(), opened ? objectTitle(*opened) : QString());
}

void PropertiesController::refresh()
{
    OdDbObject* object = m_object.openObject();
    if (!object)
        return show(OdDbObjectId::kNull);
    const std::vector<ObjectField> fields = objectFields(*object);
    if (!update(fields))
        fill(fields, objectTitle(*object));
}

void PropertiesController::fill(const std::vector<ObjectField>& fields, const QString& title)
{
    std::unique_ptr<PropertiesListModel, Later> former = std::move(m_properties);
    if (!fields.empty())
        m_properties.reset(new PropertiesListModel(title));
    PropertiesListModel* list = m_properties.get();
    for (const ObjectField& field : fields)
        list->appendProperty(
            field.label, [this, list, object = m_object, label = field.label] { edit(*list, object, label); }, false,
            field.value, !field.apply, field.type, field.toolTip, field.choices);
    Q_EMIT changed();
}

bool PropertiesController::update(const std::vector<ObjectField>& fields)
{
    if (!m_properties || m_properties->rowCount() != static_cast<int>(fields.size()))
        return false;
    for (int row = 0; row < m_properties->rowCount(); ++row) {
        const ObjectField& field = fields[static_cast<std::size_t>(row)];
        const QModelIndex index = m_properties->index(row);
        if (m_properties->data(index, PropertiesListModel::LabelRole) != field.label ||
            m_properties->data(index, PropertiesListModel::ChoicesRole) != QVariant(field.choices))
            return false;
    }
    // A value that is set calls its handler, too.
    const QScopedValueRollback updating(m_isUpdating, true);
    for (const ObjectField& field : fields)
        m_properties->setProperty(field.label, field.value);
    return true;
}

void PropertiesController::edit(const PropertiesListModel& list, OdDbObjectId id, const QString& label)
{
    // A page that gives up the keyboard may bring its last edit when another object, or another drawing, is shown.
    const OdApDocument* document = m_documents.curDocument();
    if (m_isUpdating || !document || document->database() != id.database())
        return;
    OdDbObject* object = id.openObject();
    if (!object)
        return;
    for (const ObjectField& field : objectFields(*object))
        if (field.label == label && field.apply) {
            field.apply(list.property(label));
            break;
        }
    if (onEdited)
        onEdited();
}
} // namespace workbench
