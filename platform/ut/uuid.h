#pragma once

#include "od/odstring.h"

#include <array>
#include <cstdint>

namespace ut {
/// A universally unique identifier.
class PLATFORM_EXPORT UUID
{
public:
    /// The identifier of all zeros.
    static const UUID s_cNil;

    UUID() = default;
    /// From the form "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx", with or without braces; another text gives s_cNil.
    explicit UUID(const OdString& text);
    static UUID create();

    OdString toString() const;
    bool isNil() const { return *this == s_cNil; }

    friend bool operator==(const UUID&, const UUID&) = default;
    friend auto operator<=>(const UUID&, const UUID&) = default;

private:
    std::array<std::uint8_t, 16> m_bytes{};
};
} // namespace ut
