#pragma once

#include "velm/drawingprops/iarrowheadmodel.h"

#include <QColor>

class OdDbDatabase;

namespace workbench {
/// The common arrowheads with pictures of a size in pixels, for a combo.
std::vector<velm::ArrowHeadRecord> arrowheadRecords(const QSize& size, const QColor& line);
/// All arrowheads: those that drawing files know, then the blocks that a drawing has. The database may be null.
std::vector<velm::ArrowHeadRecord> allArrowheadRecords(const OdDbDatabase* database, const QSize& size,
                                                       const QColor& line);
/// The arrowhead of an internal name, where the empty one stands for the closed, filled arrowhead; a name that isn't
/// known is taken for a block's, and shown without a picture.
velm::ArrowHeadRecord arrowheadRecord(const QString& internalName, const QSize& size, const QColor& line);
} // namespace workbench
