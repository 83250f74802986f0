#include "velm/table/cellcomparison.h"

#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/table/columns.h"
#include "velm/table/comparators.h"

#include <QModelIndex>

namespace velm::cellcomparison {
namespace {
wxString textOf(const QModelIndex& index, int role)
{
    return wxFromQt(index.data(role).toString());
}
} // namespace

Kind kindOf(const QVariant& value)
{
    switch (value.metaType().id()) {
    case QMetaType::UnknownType:
        return Kind::None;
    case QMetaType::Int:
        return Kind::Int;
    case QMetaType::UInt:
        return Kind::UInt;
    case QMetaType::LongLong:
        return Kind::LongLong;
    case QMetaType::ULongLong:
        return Kind::ULongLong;
    case QMetaType::Double:
        return Kind::Double;
    case QMetaType::Float:
        return Kind::Float;
    case QMetaType::QChar:
        return Kind::Char;
    case QMetaType::QDate:
        return Kind::Date;
    case QMetaType::QTime:
        return Kind::Time;
    case QMetaType::QDateTime:
        return Kind::DateTime;
    default:
        return Kind::Text;
    }
}

bool cellsLessThan(const QModelIndex& left, const QModelIndex& right, int sortType, int sortRole)
{
    const int role = sortType == SortDecoration ? static_cast<int>(Qt::DecorationRole) : sortRole;
    wxString leftText = textOf(left, role);
    wxString rightText = textOf(right, role);
    switch (sortType) {
    case SortAlphanumeric:
    case SortAlphanumericAlt:
    case SortDecoration:
        return stringsLessThan(leftText, rightText);
    case SortCaseInsensitive:
        return QString::compare(left.data(role).toString(), right.data(role).toString(), Qt::CaseInsensitive) < 0;
    case SortInteger:
        return integersLessThan(leftText, rightText);
    case SortDouble:
        return doublesLessThan(leftText, rightText);
    case SortFileSize:
        return fileSizeLessThan(leftText, rightText);
    case SortToggleDisabled:
        return toggleDisabledLessThan(leftText, rightText);
    case SortPlotStyle:
        return plotStylesLessThan(leftText, rightText, plotStyleColorDependent());
    case SortPixelSize:
        return pixelSizeLessThan(leftText, rightText);
    case SortDimStyle:
        return dimStylesLessThan(leftText, rightText);
    default:
        return valuesLessThan(left.data(role), right.data(role), [&] { return stringsLessThan(leftText, rightText); });
    }
}
} // namespace velm::cellcomparison
