#pragma once

#include "ut/themecolors.h"

#include <QString>

#include <wx/toolbar.h>

#include <map>
#include <vector>

namespace workbench {
struct Action;

/// A tool for each action that has an icon, with a line where the actions of another menu begin. A tool does what the
/// entry of the menu does and is marked and enabled like it.
class FrameToolBar : public wxToolBar
{
public:
    /// The frame has got its menus of these actions.
    FrameToolBar(wxFrame& frame, const std::vector<Action>& actions);

    void setTheme(ut::EGuiColorTheme theme);

private:
    std::map<int, QString> m_icons; // by the tools' numbers, which are those of the entries
};
} // namespace workbench
