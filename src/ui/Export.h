#pragma once

/// Marks what the shared library exports.
#define UI_EXPORT __attribute__((visibility("default")))
