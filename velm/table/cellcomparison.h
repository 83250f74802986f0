#pragma once

#include <QVariant>

#include <wx/string.h>

class QModelIndex;

/// The orders of table cells by sort type, read from the source for each comparison. A sort compares by SortKeys
/// instead, which have the same order; this is for the few comparisons made elsewhere.
namespace velm::cellcomparison {
/// What of a value decides its order.
enum class Kind
{
    None, ///< a value of no type
    Int,
    UInt,
    LongLong,
    ULongLong,
    Double,
    Float,
    Char,
    Date,
    Time,
    DateTime,
    Text, ///< strings, and whatever has no order of its own
};

Kind kindOf(const QVariant& value);

/// The order of SortByValueType: by the type of the left value, values of no type last. `textsLessThan` is asked where
/// texts decide.
template <typename TextsLessThan>
bool valuesLessThan(const QVariant& left, const QVariant& right, TextsLessThan textsLessThan);

/// For every sort type but those of the base class. `sortType` may be any number: unknown ones sort by value type.
bool cellsLessThan(const QModelIndex& left, const QModelIndex& right, int sortType, int sortRole);
} // namespace velm::cellcomparison

#include <QChar>
#include <QDate>
#include <QDateTime>
#include <QTime>

template <typename TextsLessThan>
bool velm::cellcomparison::valuesLessThan(const QVariant& left, const QVariant& right, TextsLessThan textsLessThan)
{
    const Kind kind = kindOf(left);
    if (kind == Kind::None)
        return false;
    if (!right.isValid())
        return true;
    switch (kind) {
    case Kind::Int:
        return left.toInt() < right.toInt();
    case Kind::UInt:
        return left.toUInt() < right.toUInt();
    case Kind::LongLong:
        return left.toLongLong() < right.toLongLong();
    case Kind::ULongLong:
        return left.toULongLong() < right.toULongLong();
    case Kind::Double:
        return left.toDouble() < right.toDouble();
    case Kind::Float:
        return left.toFloat() < right.toFloat();
    case Kind::Char:
        return left.toChar() < right.toChar();
    case Kind::Date:
        return left.toDate() < right.toDate();
    case Kind::Time:
        return left.toTime() < right.toTime();
    case Kind::DateTime:
        return left.toDateTime() < right.toDateTime();
    case Kind::None:
    case Kind::Text:
        break;
    }
    return textsLessThan();
}
