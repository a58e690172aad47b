#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/Log.h"
#include "view/fakes/CallLog.h"

namespace fakes {

/// Captures the system log while it lives; each line is also added to the call log as "log: …".
class LogCapture {
 public:
  explicit LogCapture(CallLog& calls) {
    earlier_ = ui::setLogSink([this, &calls](std::string_view text) {
      lines_.emplace_back(text);
      calls.add("log: ", text);
    });
  }
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;
  ~LogCapture() { ui::setLogSink(std::move(earlier_)); }

  const std::vector<std::string>& lines() const { return lines_; }
  void clear() { lines_.clear(); }

 private:
  std::vector<std::string> lines_;
  ui::LogSink earlier_;
};

}  // namespace fakes
