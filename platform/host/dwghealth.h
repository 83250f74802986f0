#pragma once

namespace oc::dwghealth {
/// The host's kinds of drawing-health tasks.
enum class ETaskType : int
{
    EmptyLayers = 0,
    ZeroLengthLines = 1,
};
} // namespace oc::dwghealth
