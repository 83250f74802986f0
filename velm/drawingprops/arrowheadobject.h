#pragma once

#include "velm/drawingprops/iarrowheadmodel.h"

#include <QObject>

namespace velm {
/// One row of an arrowhead combo.
class VELM_EXPORT ArrowHeadObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QImage arrowHeadPreview READ preview CONSTANT)
    Q_PROPERTY(int width READ width CONSTANT)
    Q_PROPERTY(int height READ height CONSTANT)
    Q_PROPERTY(QString arrowHeadName READ name CONSTANT)
public:
    /// Neither is owned; both outlive the object. `size` is what a preview takes in the page.
    ArrowHeadObject(const ArrowHeadRecord& record, QSize size);

    const ArrowHeadRecord& record() const { return m_record; }
    QImage preview() const { return m_record.preview; }
    int width() const { return m_size.width(); }
    int height() const { return m_size.height(); }
    QString name() const { return m_record.shownName; }

private:
    const ArrowHeadRecord& m_record;
    QSize m_size;
};
} // namespace velm
