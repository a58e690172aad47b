#pragma once

#include <cstddef>
#include <string>

namespace host::measure {

/// What a progress line shows.
struct ProgressState {
  std::size_t jobs = 0;
  /// Jobs that have ended, plus the finished parts of those that are running.
  double done = 0;
  double seconds = 0;
  /// Of the running job that was started first.
  std::string file;
  std::string setting;
  /// The reduction that a search for a trim is trying, in tenths of a decibel; -1 without one.
  int reduction = -1;
};

/// "[######········]  42 %  5 of 12  0:31 left  mix.wav  AAC VBRC 256", at most `width` columns.
std::string progressLine(const ProgressState& state, std::size_t width);

/// How far a search for a trim has got that has finished `encodes` encodes and the part `part` of
/// the next, from 0 to below 1, because nobody knows how many encodes it will take.
double searchProgress(int encodes, double part);

}  // namespace host::measure
