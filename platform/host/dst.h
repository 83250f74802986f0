#pragma once

namespace dst {
/// A sheet of a sheet set; only its address passes through here.
class OdSmSheet;
} // namespace dst
