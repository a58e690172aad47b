#pragma once

/// Marks the symbols that the shared library exports.
#define AUDIO_UNIT_EXPORT __attribute__((visibility("default")))
