#pragma once

#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace fakes {

/// What happened, in order, one line each: calls that a unit received ("unit.setParameter 0 = 1"),
/// writes to controls ("view.encoderPopup.selectItemAtIndex 5"), services asked
/// ("sheets.beginSheet …"), notifications ("posted …") and log lines ("log: …").
class CallLog {
 public:
  template <class... Parts>
  void add(const Parts&... parts) {
    std::ostringstream line;
    line << std::boolalpha;
    (line << ... << parts);
    lines_.push_back(line.str());
  }
  const std::vector<std::string>& lines() const { return lines_; }
  void clear() { lines_.clear(); }

  /// The lines that start with one of the prefixes, in order.
  template <class... Prefixes>
  std::vector<std::string> starting(const Prefixes&... prefixes) const {
    std::vector<std::string> found;
    for (const std::string& line : lines_) {
      if ((line.starts_with(std::string_view(prefixes)) || ...)) {
        found.push_back(line);
      }
    }
    return found;
  }
  std::size_t count(std::string_view prefix) const { return starting(prefix).size(); }

 private:
  std::vector<std::string> lines_;
};

}  // namespace fakes
