#pragma once

/// Marks what the shared library offers.
#define UI_EXPORT __attribute__((visibility("default")))
