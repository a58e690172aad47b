#include "Sound.h"

#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <random>
#include <stdexcept>

namespace {

struct Close {
  void operator()(SNDFILE* file) const { sf_close(file); }
};
using File = std::unique_ptr<SNDFILE, Close>;

SF_INFO infoOf(int format, std::uint32_t sampleRate, std::size_t channels) {
  SF_INFO info{};
  info.samplerate = static_cast<int>(sampleRate);
  info.channels = static_cast<int>(channels);
  info.format = format;
  return info;
}

}  // namespace

Sound silence(std::uint32_t sampleRate, std::size_t channels, std::size_t frames) {
  return {sampleRate, std::vector(channels, std::vector<float>(frames))};
}

Sound sine(std::uint32_t sampleRate, std::size_t channels, std::size_t frames, double hertz,
           double amplitude) {
  auto sound = silence(sampleRate, channels, frames);
  for (auto& plane : sound.planes) {
    for (std::size_t i = 0; i < frames; ++i) {
      const auto phase = 2 * std::numbers::pi * hertz * static_cast<double>(i) / sampleRate;
      plane[i] = static_cast<float>(amplitude * std::sin(phase));
    }
    amplitude *= 0.7;
  }
  return sound;
}

Sound noise(std::uint32_t sampleRate, std::size_t channels, std::size_t frames, float peak) {
  auto sound = silence(sampleRate, channels, frames);
  std::mt19937 random(1);
  std::uniform_real_distribution<float> white(-1.0F, 1.0F);
  const auto pole = static_cast<float>(std::exp(-2 * std::numbers::pi * 2000 / sampleRate));
  float scale = 0;
  for (auto& plane : sound.planes) {
    float first = 0;
    float second = 0;
    for (auto& sample : plane) {
      first = pole * first + (1 - pole) * white(random);
      second = pole * second + (1 - pole) * first;
      sample = second;
    }
    if (scale == 0) {
      for (const auto sample : plane) scale = std::max(scale, std::abs(sample));
    }
    for (auto& sample : plane) sample *= peak / scale;
  }
  return sound;
}

void writeSound(const std::filesystem::path& path, const Sound& sound, int format) {
  auto info = infoOf(format, sound.sampleRate, sound.channels());
  const File file(sf_open(path.c_str(), SFM_WRITE, &info));
  if (!file) throw std::runtime_error(std::string("cannot write: ") + sf_strerror(nullptr));
  sf_command(file.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);
  std::vector<float> interleaved;
  // Some encoders take a large block on the stack.
  constexpr std::size_t block = 4096;
  for (std::size_t begin = 0; begin < sound.frames(); begin += block) {
    interleaved.clear();
    const auto end = std::min(begin + block, sound.frames());
    for (auto i = begin; i < end; ++i) {
      for (const auto& plane : sound.planes) interleaved.push_back(plane[i]);
    }
    const auto count = static_cast<sf_count_t>(end - begin);
    if (sf_writef_float(file.get(), interleaved.data(), count) != count) {
      throw std::runtime_error("cannot write all of " + path.string());
    }
  }
}

void writeSound(const std::filesystem::path& path, const Sound& sound) {
  writeSound(path, sound, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
}

Sound readSound(const std::filesystem::path& path) {
  SF_INFO info{};
  const File file(sf_open(path.c_str(), SFM_READ, &info));
  if (!file) throw std::runtime_error("cannot read " + path.string());
  const auto channels = static_cast<std::size_t>(info.channels);
  const auto frames = static_cast<std::size_t>(info.frames);
  std::vector<float> interleaved(channels * frames);
  if (sf_readf_float(file.get(), interleaved.data(), info.frames) != info.frames) {
    throw std::runtime_error("cannot read all of " + path.string());
  }
  auto sound = silence(static_cast<std::uint32_t>(info.samplerate), channels, frames);
  for (std::size_t i = 0; i < frames; ++i) {
    for (std::size_t channel = 0; channel < channels; ++channel) {
      sound.planes[channel][i] = interleaved[i * channels + channel];
    }
  }
  return sound;
}

float largestDifference(const Sound& one, const Sound& other) {
  float largest = 0;
  for (std::size_t channel = 0; channel < std::min(one.channels(), other.channels()); ++channel) {
    for (std::size_t i = 0; i < std::min(one.frames(), other.frames()); ++i) {
      largest = std::max(largest, std::abs(one.planes[channel][i] - other.planes[channel][i]));
    }
  }
  return largest;
}

int bestLag(const Sound& earlier, const Sound& later, int reach) {
  const auto& from = earlier.planes.front();
  const auto& to = later.planes.front();
  const auto margin = static_cast<std::size_t>(reach);
  const auto end = std::min(from.size(), to.size()) - margin;
  double best = -1;
  int lag = 0;
  for (int shift = -reach; shift <= reach; ++shift) {
    double sum = 0;
    for (auto i = margin; i < end; ++i) {
      const auto other = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(i) + shift);
      sum += static_cast<double>(from[i]) * static_cast<double>(to[other]);
    }
    if (sum > best) {
      best = sum;
      lag = shift;
    }
  }
  return lag;
}
