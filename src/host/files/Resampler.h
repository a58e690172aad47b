#pragma once

#include <memory>

#include "host/files/AudioSource.h"

namespace host {

struct DeleteResampler {
  void operator()(void* resampler) const;
};

/// A `soxr_t`.
using Resampler = std::unique_ptr<void, DeleteResampler>;

enum class SampleLayout { Interleaved, Planes };

/// A resampler from this format to another sample rate: very high quality, linear phase. Throws
/// `Failure`.
Resampler makeResampler(AudioFormat format, std::uint32_t sampleRate, SampleLayout layout);

}  // namespace host
