#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace appkit_test {

/// Stands in, as long as it lives, for the system's save panel and help manager.
class StandIns {
 public:
  struct SavePanel {
    /// What it gives; nothing stands for Cancel.
    std::optional<std::filesystem::path> answer;
    /// The names that it has been shown with.
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
