#pragma once

#include <string>
#include <vector>

#include "ui/HelpManager.h"
#include "view/fakes/CallLog.h"

namespace fakes {

class FakeHelpManager final : public ui::HelpManager {
 public:
  explicit FakeHelpManager(CallLog& log) : log_(log) {}
  const std::vector<std::string>& anchors() const { return anchors_; }
  void openHelpAnchor(const std::string& anchor, const std::string& book) override {
    log_.add("help.openHelpAnchor ", anchor, " in ", book);
    anchors_.push_back(anchor);
  }

 private:
  CallLog& log_;
  std::vector<std::string> anchors_;
};

}  // namespace fakes
