#pragma once

#include "od/odarray.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

class OdDbDatabase;
class OdDbLinetypeTableRecord;

namespace workbench {
/// A linetype as a file defines it: the dashes in drawing units, above zero a dash, below zero a gap, zero a dot.
struct LineType
{
    QString name;
    QString description;
    OdArray<double> dashes;
};

/// What is in a file of linetype definitions. Such a file is a text; a linetype takes two lines, and a line that begins
/// with a semicolon is a comment:
///
///     *FENCE,Posts with rails between them
///     A,8,-2,0,-2
///
/// Supported: UTF-8, also UTF-16 with a byte order mark, and otherwise Latin-1; lines that end in any way. Not
/// supported, and reported: linetypes with shapes and texts in brackets. Names are told apart without regard to case;
/// the first definition of a name counts.
struct LineTypeFile
{
    std::vector<LineType> lineTypes;
    QStringList problems; ///< of the lines that were skipped, with their numbers
    QString error;        ///< why there is no linetype; empty when there is one
};

LineTypeFile parseLineTypes(const QByteArray& text);
LineTypeFile readLineTypes(const QString& path);

/// The file that comes with the program and lies beside it.
QString standardLineTypes();

/// The record of the name in the drawing, as it was or new, with the linetype's dashes.
OdDbLinetypeTableRecord* loadLineType(OdDbDatabase& database, const LineType& lineType);
} // namespace workbench
