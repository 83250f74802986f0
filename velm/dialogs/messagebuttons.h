#pragma once

#include "od/odstring.h"
#include "velm/velm_export.h"

#include <vector>

class QString;

namespace velm {
/// One button of a message box.
struct MessageButtonInfo
{
    OdString text; ///< translated, with its mnemonic
    int id = 0;    ///< what the box returns when the button is pressed
};

enum class MessageButtonStyle
{
    OK = 0,
    OKCancel = 1,
    YesNo = 2,
    YesNoCancel = 3,
};

/// The icon of a message box.
enum class EMessageStyle
{
    Information = 1,
    Warning = 2,
    Error = 4,
};

enum class EDefaultAction
{
    Clone = 0,
    Remove = 1,
    Rename = 2,
};

/// The buttons of a style, translated now; an unknown style gives those of OK.
VELM_EXPORT std::vector<MessageButtonInfo> buttonsFromButtonStyle(MessageButtonStyle style);
/// The action's translated name, or a null string.
VELM_EXPORT QString getDefaultActionName(EDefaultAction action);
} // namespace velm
