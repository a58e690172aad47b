#pragma once

#include <cstddef>

/// Allocations with `new` since the program started, by all threads. Linking this replaces the
/// global operator new.
std::size_t allocationCount();
