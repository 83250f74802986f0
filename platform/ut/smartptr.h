#pragma once

#include <memory>

/// The host's shared pointer.
template <typename T>
using TnSmartPtr = std::shared_ptr<T>;
