#pragma once

#include "od/odapdocmanager.h"
#include "od/oddbobjectid.h"

#include <QObject>

namespace workbench {
/// The one entity that the canvas, the panels and the commands are about. Nothing is selected when the drawing goes.
class Selection : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
public:
    /// The documents are not owned and outlive the object.
    explicit Selection(OdApDocManager& documents);
    ~Selection() override;

    /// Null when nothing is selected, or when what was selected is erased.
    OdDbObjectId current() const;
    void set(OdDbObjectId entity);
    void clear() { set(OdDbObjectId::kNull); }

Q_SIGNALS:
    void changed();

private:
    void documentBecameCurrent(OdApDocument* document) override;

    OdApDocManager& m_documents;
    OdDbObjectId m_current;
};
} // namespace workbench
