#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "programs/measure/Job.h"

namespace host::measure {

/// The rows as people read them, aligned, with a head that names the units: a line each, or two
/// where the terminal is too narrow for that. Names give way first; figures are always whole.
class Table {
 public:
  /// `files` are all that will come. `width` is that of the terminal, or 0 where nothing limits it.
  /// With `colored` overs are drawn in red.
  Table(const std::vector<std::string>& files, std::size_t width, bool withTrim, bool interSample,
        bool colored);

  std::string head() const;
  /// One line or two.
  std::string lines(const Row& row) const;

 private:
  std::size_t fileWidth_;
  /// Between a line's halves: nothing, or a line's end and what the second half begins with.
  std::string lineBreak_;
  bool withTrim_;
  bool interSample_;
  bool colored_;
};

}  // namespace host::measure
