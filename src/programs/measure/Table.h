#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "programs/measure/Job.h"

namespace host::measure {

/// Formats rows for people: aligned, under a head that names the units, a line each, or two where
/// the terminal is too narrow. Names are elided first; figures are always whole.
class Table {
 public:
  /// `files` are all files that rows will name. `width` is that of the terminal, or 0 for no limit.
  /// With `colored` the word OVER is red.
  Table(const std::vector<std::string>& files, std::size_t width, bool withTrim, bool interSample,
        bool colored);

  std::string head() const;
  /// One line or two.
  std::string lines(const Row& row) const;

 private:
  std::size_t fileWidth_;
  /// Between a row's halves: nothing, or a line break and the indentation of the second half.
  std::string lineBreak_;
  bool withTrim_;
  bool interSample_;
  bool colored_;
};

}  // namespace host::measure
