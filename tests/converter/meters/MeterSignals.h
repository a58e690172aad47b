#pragma once

#include <cstddef>
#include <vector>

/// Signals whose peaks are known, or that are hard on a meter. One channel, full scale is 1.
namespace meter_signals {

using Samples = std::vector<float>;

/// A steady sine. `frequency` is in cycles per sample, `degrees` the phase of the first sample.
Samples sine(double frequency, double degrees, double amplitude, std::size_t frames);

/// The same with raised-cosine ends of `fade` frames, so that nothing but the sine makes a peak.
Samples fadedSine(double frequency, double degrees, double amplitude, std::size_t frames,
                  std::size_t fade);

/// One cycle of a sine of a quarter of the sample rate, peak 1, within one of a sixth of it, peak
/// 0.5, made at four times the sample rate, brought down by an ideal low-pass and by keeping every
/// fourth sample from `offset` on: the construction of EBU Tech 3341, cases 20 to 23.
Samples singleCycle(std::size_t offset);

/// Short bursts of noise below `highest` cycles per sample, every third one a lot louder.
Samples noiseBursts(double highest, std::size_t frames, unsigned seed);

/// Chords, beats and noise below 0.35 cycles per sample, with peaks of about `peak`.
Samples mix(std::size_t frames, float peak, unsigned seed);

/// The mix driven `drive` times into a soft clipper, as loud masters are: most samples near 1.
Samples hotMix(std::size_t frames, float drive, unsigned seed);

/// The mix cut off at full scale, sample by sample.
Samples clippedMix(std::size_t frames, float drive, unsigned seed);

Samples whiteNoise(std::size_t frames, float peak, unsigned seed);

/// The peak of the band-limited signal through the samples: sinc interpolation over 256 neighbours
/// to 32 points per interval, in double precision. The samples outside are taken as 0, and only
/// intervals from `first` up to `last` are searched.
double idealPeak(const Samples& samples, std::size_t first, std::size_t last);

}  // namespace meter_signals
