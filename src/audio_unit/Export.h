#pragma once

/// Marks what the shared library offers.
#define AUDIO_UNIT_EXPORT __attribute__((visibility("default")))
