#pragma once

#include <cstddef>

/// Allocations with `new` in this program since it started, by all threads. A program that links
/// this has its own operator new.
std::size_t allocationCount();
