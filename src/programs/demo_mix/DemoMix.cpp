#include "programs/demo_mix/DemoMix.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "programs/demo_mix/Arpeggio.h"
#include "programs/demo_mix/Bass.h"
#include "programs/demo_mix/Chords.h"
#include "programs/demo_mix/Drums.h"
#include "programs/demo_mix/Limiter.h"
#include "programs/demo_mix/Score.h"

namespace host::demo_mix {
namespace {

constexpr double kKickLevel = 0.95;
constexpr double kBassLevel = 0.5;
constexpr double kChordLevel = 0.8;
constexpr double kArpeggioLevel = 0.32;
constexpr double kClapLevel = 0.9;
constexpr double kHatLevel = 0.7;
/// How far the mix is driven into the limiter.
constexpr double kDrive = 2.4;

struct Parts {
  explicit Parts(std::size_t frames)
      : kick(frames), bass(frames), chords(frames), arpeggio(frames), claps(frames), hats(frames) {}

  Stereo kick;
  Stereo bass;
  Stereo chords;
  Stereo arpeggio;
  Stereo claps;
  Stereo hats;
};

void playDrums(Parts& parts, const Bar& bar, std::size_t begin) {
  for (std::size_t i = 0; i < kSixteenthsPerBar; ++i) {
    const auto at = frameOf(begin + i);
    const auto seed = static_cast<std::uint32_t>(begin + i);
    const auto inBeat = i % kSixteenthsPerBeat;
    if (inBeat == 0) playKick(parts.kick, at);
    if (bar.isFull && i % (2 * kSixteenthsPerBeat) == kSixteenthsPerBeat) {
      playClap(parts.claps, at, seed);
    }
    constexpr std::array<double, kSixteenthsPerBeat> accents = {0.5, 0.35, 0.9, 0.4};
    playHat(parts.hats, at, accents[inBeat], bar.isFull && inBeat == 2, seed + 1000000);
  }
}

Parts played(std::size_t frames) {
  Parts parts(frames);
  for (std::size_t number = 0; frameOf(number * kSixteenthsPerBar) < frames; ++number) {
    const auto bar = barAt(number);
    const auto begin = number * kSixteenthsPerBar;
    playDrums(parts, bar, begin);
    playBass(parts.bass, bar, begin);
    playChord(parts.chords, bar, begin);
    if (bar.isFull) playArpeggio(parts.arpeggio, bar, begin);
  }
  return parts;
}

/// The gain of bass and chords while the kick sounds.
double ducking(double seconds) {
  constexpr double beat = kSecondsPerSixteenth * kSixteenthsPerBeat;
  return 1 - 0.75 * std::exp(-std::fmod(seconds, beat) / 0.1);
}

double fading(std::size_t frame, std::size_t frames) {
  const auto fade = std::min(framesIn(0.5), frames / 4);
  const auto left = frames - frame;
  return left < fade ? static_cast<double>(left) / static_cast<double>(fade) : 1;
}

using Channel = std::vector<double> Stereo::*;

double mixed(const Parts& parts, Channel channel, std::size_t i) {
  const double duck = ducking(static_cast<double>(i) / kSampleRate);
  return kKickLevel * (parts.kick.*channel)[i] + duck * kBassLevel * (parts.bass.*channel)[i] +
         duck * kChordLevel * (parts.chords.*channel)[i] +
         kArpeggioLevel * (parts.arpeggio.*channel)[i] + kClapLevel * (parts.claps.*channel)[i] +
         kHatLevel * (parts.hats.*channel)[i];
}

void scaleToFullScale(Stereo& mix) {
  double largest = 0;
  for (const auto* const side : {&mix.left, &mix.right}) {
    for (const double sample : *side) {
      if (std::abs(sample) > std::abs(largest)) largest = sample;
    }
  }
  if (largest == 0) return;
  for (auto* const side : {&mix.left, &mix.right}) {
    for (double& sample : *side) sample /= -largest;
  }
}

}  // namespace

Stereo demoMix(double seconds) {
  const auto frames = framesIn(seconds);
  const auto parts = played(frames);
  Stereo mix(frames);
  for (std::size_t i = 0; i < frames; ++i) {
    mix.left[i] = kDrive * mixed(parts, &Stereo::left, i);
    mix.right[i] = kDrive * mixed(parts, &Stereo::right, i);
  }
  // Full scale for the largest sample lifts the wave between the samples above it again, a little
  // less each time.
  for (int pass = 0; pass < 3; ++pass) {
    limit(mix);
    scaleToFullScale(mix);
  }
  for (std::size_t i = 0; i < frames; ++i) {
    mix.left[i] *= fading(i, frames);
    mix.right[i] *= fading(i, frames);
  }
  scaleToFullScale(mix);
  return mix;
}

}  // namespace host::demo_mix
