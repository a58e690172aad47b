#pragma once

#include <array>
#include <cstddef>

namespace host::demo_mix {

inline constexpr double kSecondsPerSixteenth = 0.125;
inline constexpr std::size_t kSixteenthsPerBeat = 4;
inline constexpr std::size_t kSixteenthsPerBar = 16;

/// What is played in one bar. Notes are numbered in semitones; 69 is the A at 440 Hz.
struct Bar {
  int root;
  std::array<int, 4> chord;
  /// Whether claps, open hats and the arpeggio play, which the first bars hold back.
  bool isFull;
};

/// A bar of the piece, which starts over at its end.
Bar barAt(std::size_t number);

double hertzOf(int note);
std::size_t frameOf(std::size_t sixteenth);

}  // namespace host::demo_mix
