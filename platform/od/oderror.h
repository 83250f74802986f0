#pragma once

#include "od/odstring.h"

#include <exception>

/// Result codes of the drawing database; only those that the code in this repository tells apart.
enum OdResult
{
    eOk = 0,
    eInvalidIndex = 5,
    eNotThatKindOfClass = 7,
    eOutOfMemory = 9,
    eGeneralError = 100,
};

/// What the drawing database throws: a code, and a text for a person.
class PLATFORM_EXPORT OdError : public std::exception
{
public:
    explicit OdError(OdResult code);
    explicit OdError(const OdString& description);

    OdResult code() const { return m_code; }
    const OdString& description() const { return m_description; }
    const char* what() const noexcept override { return m_narrow.c_str(); }

private:
    OdResult m_code;
    OdString m_description;
    std::string m_narrow;
};

/// An access outside an array.
class PLATFORM_EXPORT OdError_InvalidIndex : public OdError
{
public:
    OdError_InvalidIndex();
};

/// An object that is of another class than the one it was opened as.
class PLATFORM_EXPORT OdError_NotThatKindOfClass : public OdError
{
public:
    OdError_NotThatKindOfClass();
};
