#pragma once

#include "velm/velm_export.h"

#include <memory>

namespace velm {
/// The theme's colours for a program that has no application object of its own: makes one, and in setUp() an engine
/// with the configured theme as the extension of ut::ThemeColorManager.
class VELM_EXPORT AppColorThemeHelper
{
public:
    AppColorThemeHelper();
    ~AppColorThemeHelper();
    AppColorThemeHelper(const AppColorThemeHelper&) = delete;
    AppColorThemeHelper& operator=(const AppColorThemeHelper&) = delete;

    void setUp();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
