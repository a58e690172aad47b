#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

/// Audio in memory, one vector of samples per channel.
struct Sound {
  std::uint32_t sampleRate = 48000;
  std::vector<std::vector<float>> planes;

  std::size_t channels() const { return planes.size(); }
  std::size_t frames() const { return planes.empty() ? 0 : planes.front().size(); }
};

Sound silence(std::uint32_t sampleRate, std::size_t channels, std::size_t frames);
/// A sine that begins at phase 0; each further channel is at 0.7 times the one before.
Sound sine(std::uint32_t sampleRate, std::size_t channels, std::size_t frames, double hertz,
           double amplitude = 0.5);
/// Noise below 5 kHz or so, never the same stretch twice, peaks of the first channel at `peak`; the
/// second channel is its own noise.
Sound noise(std::uint32_t sampleRate, std::size_t channels, std::size_t frames, float peak = 0.5F);

/// Writes it in a format of libsndfile.
void writeSound(const std::filesystem::path& path, const Sound& sound, int format);
/// As 32-bit float WAV.
void writeSound(const std::filesystem::path& path, const Sound& sound);
Sound readSound(const std::filesystem::path& path);

/// Largest difference of two samples at the same place, over the frames that both have.
float largestDifference(const Sound& one, const Sound& other);
/// The shift of `later` against `earlier`, within `reach` both ways, at which their first channels
/// correlate most.
int bestLag(const Sound& earlier, const Sound& later, int reach);
