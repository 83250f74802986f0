#pragma once

#include "od/odarray.h"
#include "od/odstring.h"
#include "velm/velm_export.h"

class QObject;

namespace velm {
// What a page says to the command line. The call waits in the event queue of `context`, since the button that starts it
// may not outlive what the command does; it isn't made when the context dies before. A null context does nothing.

/// Presses Enter.
VELM_EXPORT void acceptCommandLine(QObject* context);
/// Presses Escape.
VELM_EXPORT void rejectCommandLine(QObject* context);
/// Chooses an option of the running command by its untranslated keyword, with or without the "_" in front. Nothing for
/// an empty one.
VELM_EXPORT void invokeCommandLineOption(QObject* context, OdString option);
/// Enters values one after the other; nothing without any.
VELM_EXPORT void invokeCommandLineEnterValues(QObject* context, const OdArray<OdString>& values);
} // namespace velm
