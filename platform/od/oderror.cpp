#include "od/oderror.h"

namespace {
const wchar_t* describe(OdResult code)
{
    switch (code) {
    case eOk:
        return L"No error";
    case eInvalidIndex:
        return L"Invalid index";
    case eNotThatKindOfClass:
        return L"Not that kind of class";
    case eOutOfMemory:
        return L"Out of memory";
    case eGeneralError:
        break;
    }
    return L"General error";
}
} // namespace

OdError::OdError(OdResult code) : m_code(code), m_description(describe(code)), m_narrow(m_description.utf8())
{}

OdError::OdError(const OdString& description)
    : m_code(eGeneralError), m_description(description), m_narrow(description.utf8())
{}

OdError_InvalidIndex::OdError_InvalidIndex() : OdError(eInvalidIndex)
{}

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass() : OdError(eNotThatKindOfClass)
{}
