#include "velm/table/comparators.h"

#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/drawingprops/dimstylesorter.h"
#include "velm/table/cellvalues.h"

namespace velm {
using namespace cellvalues;

bool stringsLessThan(const wxString& left, const wxString& right)
{
    return naturalCompare(left, right) < 0;
}

bool integersLessThan(const wxString& left, const wxString& right)
{
    return !left.empty() && !right.empty() && leadingInteger(left) < leadingInteger(right);
}

bool doublesLessThan(const wxString& left, const wxString& right)
{
    if (left.empty() || right.empty())
        return false;
    const std::optional<double> leftNumber = number(left);
    const std::optional<double> rightNumber = number(right);
    return leftNumber && rightNumber ? *leftNumber < *rightNumber : stringsLessThan(left, right);
}

bool fileSizeLessThan(wxString& left, wxString& right)
{
    if (left.empty() || right.empty())
        return stringsLessThan(left, right);
    const double leftSize = takeFileSize(left);
    const double rightSize = takeFileSize(right);
    return leftSize == 0.0 || rightSize == 0.0 ? stringsLessThan(left, right) : leftSize < rightSize;
}

bool plotStylesLessThan(const wxString& left, const wxString& right, bool colorDependent)
{
    if (left.empty() || right.empty())
        return false;
    return colorDependent ? plotStyleNumber(left) < plotStyleNumber(right) : stringsLessThan(left, right);
}

bool toggleDisabledLessThan(const wxString& left, const wxString& right)
{
    if (left.empty() || right.empty())
        return false;
    if (isDisabled(left))
        return !isDisabled(right);
    return !isDisabled(right) && left.CmpNoCase(right) < 0;
}

bool pixelSizeLessThan(const wxString& left, const wxString& right)
{
    if (left.empty() || right.empty())
        return false;
    const PixelSize leftSize = pixelSize(left);
    const PixelSize rightSize = pixelSize(right);
    if (leftSize.hasComma && rightSize.hasComma && leftSize.area >= 0.0 && rightSize.area >= 0.0)
        return leftSize.area < rightSize.area;
    return stringsLessThan(left, right);
}

bool dimStylesLessThan(const wxString& left, const wxString& right)
{
    if (left.empty() || right.empty())
        return false;
    return DimstyleSorter(currentDatabase())(OdString(left.wc_str()), OdString(right.wc_str()));
}
} // namespace velm
