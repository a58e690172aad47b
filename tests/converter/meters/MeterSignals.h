#pragma once

#include <cstddef>
#include <vector>

/// Signals with known peaks, or that are hard on a meter. Mono; full scale is 1.
namespace meter_signals {

using Samples = std::vector<float>;

/// A steady sine. `frequency` in cycles per sample; `degrees` is the phase of the first sample.
Samples sine(double frequency, double degrees, double amplitude, std::size_t frames);

/// The same with raised-cosine fades of `fade` frames, so that only the sine itself makes a peak.
Samples fadedSine(double frequency, double degrees, double amplitude, std::size_t frames,
                  std::size_t fade);

/// One cycle of a sine at fs/4, peak 1, within a sine at fs/6, peak 0.5. Made at 4 fs, low-passed
/// ideally and decimated by keeping every fourth sample from `offset` on, as EBU Tech 3341
/// constructs its cases 20 to 23.
Samples singleCycle(std::size_t offset);

/// Short bursts of noise below `highest` cycles per sample; every third one is much louder.
Samples noiseBursts(double highest, std::size_t frames, unsigned seed);

/// Chords, beats and noise below 0.35 cycles per sample, with peaks of about `peak`.
Samples mix(std::size_t frames, float peak, unsigned seed);

/// The mix, amplified by `drive` into a soft clipper like a loud master: most samples near 1.
Samples hotMix(std::size_t frames, float drive, unsigned seed);

/// The mix, amplified by `drive` and hard-clipped at full scale.
Samples clippedMix(std::size_t frames, float drive, unsigned seed);

Samples whiteNoise(std::size_t frames, float peak, unsigned seed);

/// The peak of the band-limited signal through the samples: sinc interpolation over 256 neighbours
/// to 32 points per interval, in double precision. Samples outside the vector are 0; only the
/// intervals [first, last) are searched.
double idealPeak(const Samples& samples, std::size_t first, std::size_t last);

}  // namespace meter_signals
