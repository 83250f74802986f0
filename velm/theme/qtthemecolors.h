#pragma once

#include "ut/themecolors.h"
#include "velm/velm_export.h"

#include <wx/colour.h>

#include <functional>
#include <memory>

class QApplication;
class QQmlEngine;

namespace velm {
class IQtController;

enum class ERefreshQml
{
    Yes = 0, ///< clear the component cache and reload the page
    No = 1,
};

/// Answers the host's questions for interface colours from the colour map that the Theme singleton of QML keeps in the
/// engine's property "colorMap", so that wx panels and pages show the same colours. It must not outlive the engine.
class VELM_EXPORT QtThemeColors : public ut::IThemeColors
{
public:
    /// Applies the theme. Engine and application are not owned; the getter gives the page to reload and may be empty.
    QtThemeColors(QQmlEngine& engine, QApplication& application, std::function<IQtController*()> controllerGetter,
                  ut::EGuiColorTheme theme, ERefreshQml refresh);
    ~QtThemeColors() override;

    /// The colour 0x00BBGGRR; what the theme doesn't know is the grey 0xC0C0C0.
    unsigned long guiColorRef(ut::EGuiColor color) override;
    bool setColorTheme(ut::EGuiColorTheme theme) override;
    void setGuiColor(ut::EGuiColor color, unsigned long value) override;

    wxColour guiColor(ut::EGuiColor color);

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
