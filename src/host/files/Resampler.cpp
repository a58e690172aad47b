#include "host/files/Resampler.h"

#include <soxr.h>

#include "host/messages/Failure.h"

namespace host {

void DeleteResampler::operator()(void* resampler) const {
  soxr_delete(static_cast<soxr_t>(resampler));
}

Resampler makeResampler(AudioFormat format, std::uint32_t sampleRate, SampleLayout layout) {
  const auto type = layout == SampleLayout::Planes ? SOXR_FLOAT32_S : SOXR_FLOAT32_I;
  soxr_error_t error = nullptr;
  const auto samples = soxr_io_spec(type, type);
  const auto quality = soxr_quality_spec(SOXR_VHQ, SOXR_ROLLOFF_NONE | SOXR_HI_PREC_CLOCK);
  const auto threads = soxr_runtime_spec(1);
  Resampler resampler(soxr_create(format.sampleRate, sampleRate, format.channels, &error, &samples,
                                  &quality, &threads));
  if (!resampler) {
    throw Failure(
        Message::words(
            "cannot resample from %1 to %2 Hz: %3; convert the file to 44100 or 48000 Hz first"),
        {format.sampleRate, sampleRate,
         error != nullptr ? Message(error) : Message::words("unknown error")});
  }
  return resampler;
}

}  // namespace host
