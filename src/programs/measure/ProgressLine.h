#pragma once

#include <cstddef>
#include <string>

namespace host::measure {

/// What a progress line tells.
struct ProgressState {
  std::size_t jobs = 0;
  /// Jobs that have ended, and the parts of those that run.
  double done = 0;
  double seconds = 0;
  /// Of the job that runs and was begun first.
  std::string file;
  std::string setting;
  /// What is being tried of a search for a trim, in tenths of a decibel; -1 for none.
  int reduction = -1;
};

/// "[######········]  42 %  5 of 12  0:31 left  mix.wav  AAC VBRC 256", at most `width` columns.
std::string progressLine(const ProgressState& state, std::size_t width);

/// How far a search for a trim is that has ended `encodes` encodes and is amid the next; it never
/// says that it is at the end before it is.
double searchProgress(int encodes, double part);

}  // namespace host::measure
