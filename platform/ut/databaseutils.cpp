#include "ut/databaseutils.h"

bool ut::DatabaseUtils::isChildDimStyle(const OdString& name, const OdDbDatabase* database)
{
    const std::wstring& text = name.wide();
    const std::size_t dollar = text.rfind(L'$');
    if (!database || dollar == text.npos || dollar + 2 != text.size() ||
        std::wstring_view(L"023467").find(text.back()) == std::wstring_view::npos)
        return false;
    return database->findDimStyle(name) && database->findDimStyle(text.substr(0, dollar));
}
