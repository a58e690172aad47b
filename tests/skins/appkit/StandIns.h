#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace appkit_test {

/// Replaces the system's save panel and help manager as long as it lives.
class StandIns {
 public:
  struct SavePanel {
    /// The file that it returns; nothing for Cancel.
    std::optional<std::filesystem::path> answer;
    /// The names, titles and types with which it was shown.
    std::vector<std::string> proposed;
    std::vector<std::string> titles;
    std::vector<std::string> fileTypes;
  };

  StandIns();
  StandIns(const StandIns&) = delete;
  StandIns& operator=(const StandIns&) = delete;
  ~StandIns();

  SavePanel& savePanel() { return savePanel_; }
  std::vector<std::string>& openedHelp() { return openedHelp_; }

 private:
  SavePanel savePanel_;
  std::vector<std::string> openedHelp_;
};

}  // namespace appkit_test
