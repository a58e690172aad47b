#pragma once

#include <cstddef>
#include <vector>

/// One vector of samples per channel.
using Signal = std::vector<std::vector<float>>;

/// Noise below `highest` Hz with peaks near `peak`. The second channel is 0.6 times the first plus
/// 2 % of noise of its own, so that parametric stereo keeps its shape.
Signal smoothNoise(std::size_t channels, std::size_t frames, double sampleRate, double highest,
                   float peak = 0.5F, unsigned seed = 1);

/// Plucked tones over noise with beats; peaks near 0.6, never silent.
Signal music(std::size_t channels, std::size_t frames, double sampleRate, unsigned seed = 1);

/// `count` sines of random phase, spaced evenly below `highest` Hz; RMS 0.15.
Signal sines(std::size_t channels, std::size_t frames, double sampleRate, int count,
             double highest);

Signal silence(std::size_t channels, std::size_t frames);

/// The frames [begin, end).
Signal part(const Signal& signal, std::size_t begin, std::size_t end);

/// The delay of `later` relative to `earlier` at which they correlate best, with sub-sample
/// resolution, searched for within ±`reach` samples over [begin, end) of `earlier`.
double delayBetween(const std::vector<float>& earlier, const std::vector<float>& later,
                    std::size_t begin, std::size_t end, int reach = 40);

/// Power of the difference over power of `reference`, dB, over [begin, end).
double residual(const std::vector<float>& reference, const std::vector<float>& other,
                std::size_t begin, std::size_t end);

/// Largest difference between neighbours among samples [begin, end).
float largestStep(const std::vector<float>& samples, std::size_t begin, std::size_t end);

double rms(const std::vector<float>& samples, std::size_t begin, std::size_t end);
