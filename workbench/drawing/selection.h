#pragma once

#include "od/odapdocmanager.h"
#include "od/oddbobjectid.h"

#include <QObject>

#include <vector>

namespace workbench {
/// The entities that the canvas, the panels and the commands are about. One of them is current, for what is about one
/// entity only. Nothing is selected when the drawing goes.
class Selection : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
public:
    /// The documents are not owned and outlive the object.
    explicit Selection(OdApDocManager& documents);
    ~Selection() override;

    /// Null when nothing is selected, or when what was current is erased.
    OdDbObjectId current() const;
    /// May hold what was erased since.
    const std::vector<OdDbObjectId>& entities() const { return m_entities; }
    /// Selects one entity alone; null selects none.
    void set(OdDbObjectId entity);
    /// Selects several. The current one is one of them; if it isn't, it is the first.
    void set(std::vector<OdDbObjectId> entities, OdDbObjectId current);
    void clear() { set(OdDbObjectId::kNull); }

Q_SIGNALS:
    void changed();

private:
    void documentBecameCurrent(OdApDocument* document) override;

    OdApDocManager& m_documents;
    std::vector<OdDbObjectId> m_entities;
    OdDbObjectId m_current;
};
} // namespace workbench
