#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/measure/Job.h"

namespace host::measure {

/// The rows as people read them, a line each, aligned, with a head that names the units.
class Table {
 public:
  /// `files` are all that will come. `width` is that of the terminal, or 0 where nothing limits it.
  /// With `colored` overs are drawn in red.
  Table(const std::vector<std::string>& files, std::size_t width, bool withTrim, bool interSample,
        bool colored);

  /// Two lines.
  std::string head() const;
  std::string line(const Row& row) const;

 private:
  std::size_t fileWidth_;
  bool withTrim_;
  bool interSample_;
  bool colored_;
};

}  // namespace host::measure
