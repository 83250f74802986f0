#include "od/oddbentity.h"

OdGeMatrix3d OdDbBlockReference::blockTransform(int column, int row) const
{
    const auto* block = blockTableRecord.open<OdDbBlockTableRecord>();
    const OdGePoint3d origin = block ? block->origin() : OdGePoint3d();
    return OdGeMatrix3d::translation(position - OdGePoint3d()) * OdGeMatrix3d::rotationZ(rotation) *
           OdGeMatrix3d::translation({column * columnSpacing, row * rowSpacing, 0.0}) *
           OdGeMatrix3d::scaling(scaleFactors.x, scaleFactors.y, scaleFactors.z) *
           OdGeMatrix3d::translation(OdGePoint3d() - origin);
}
