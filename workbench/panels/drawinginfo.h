#pragma once

#include "od/odapdocmanager.h"

#include <QObject>
#include <QVariantList>

namespace workbench {
/// What the page about the drawing shows: its file, what is in it, and how it writes lengths and angles.
class DrawingInfo : public QObject, private OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(QString fileName READ fileName NOTIFY changed)
    Q_PROPERTY(QString folder READ folder NOTIFY changed)
    Q_PROPERTY(QVariantList contents READ contents NOTIFY changed)
    Q_PROPERTY(QVariantList current READ current NOTIFY changed)
    Q_PROPERTY(QVariantList units READ units NOTIFY changed)
    Q_PROPERTY(int entityCount READ entityCount NOTIFY changed)
public:
    /// The documents are not owned and outlive the object.
    explicit DrawingInfo(OdApDocManager& documents);
    ~DrawingInfo() override;

    /// Empty without a drawing.
    QString fileName() const { return m_fileName; }
    QString folder() const { return m_folder; }
    /// Rows of "label" and "value".
    QVariantList contents() const { return m_contents; }
    /// What new entities get.
    QVariantList current() const { return m_current; }
    QVariantList units() const { return m_units; }
    /// In the model and the paper spaces.
    int entityCount() const { return m_entityCount; }
    /// To call after a change of the drawing.
    void refresh() { documentBecameCurrent(m_documents.curDocument()); }

Q_SIGNALS:
    void changed();

private:
    void documentBecameCurrent(OdApDocument* document) override;

    OdApDocManager& m_documents;
    QString m_fileName;
    QString m_folder;
    QVariantList m_contents;
    QVariantList m_current;
    QVariantList m_units;
    int m_entityCount = 0;
};
} // namespace workbench
