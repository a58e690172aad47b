#include "ui/Log.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <exception>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace ui {

namespace {

void writeToStandardError(std::string_view text) {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  const auto milliseconds =
      std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
  std::tm local{};
  localtime_r(&seconds, &local);
  std::array<char, 32> date{};
  const std::size_t dateLength =
      std::strftime(date.data(), date.size(), "%Y-%m-%d %H:%M:%S", &local);
  std::array<char, 8> fraction{};
  std::snprintf(fraction.data(), fraction.size(), ".%03d ", static_cast<int>(milliseconds));

  std::string line(date.data(), dateLength);
  line += fraction.data();
  line += text;
  line += '\n';
  // One call per line, so that lines of several processes do not mix.
  std::fwrite(line.data(), 1, line.size(), stderr);
}

struct State {
  // Recursive, because a sink may log or replace itself.
  std::recursive_mutex mutex;
  // Shared, because a sink that replaces itself must outlive its own call. Null is the default.
  std::shared_ptr<const LogSink> sink;
};

/// Never destroyed: destructors of other static objects may still log.
State& state() {
  static State& state = *new State;
  return state;
}

}  // namespace

void log(std::string_view text) {
  const std::lock_guard lock(state().mutex);
  const std::shared_ptr<const LogSink> sink = state().sink;
  if (sink) {
    (*sink)(text);
  } else {
    writeToStandardError(text);
  }
}

LogSink setLogSink(LogSink sink) {
  auto replacement = sink ? std::make_shared<const LogSink>(std::move(sink)) : nullptr;
  const std::lock_guard lock(state().mutex);
  const auto earlier = std::exchange(state().sink, std::move(replacement));
  return earlier ? *earlier : LogSink();
}

void runGuarded(const std::function<void()>& work) noexcept {
  // The outer block catches what the log itself throws: nobody is left to tell.
  try {
    try {
      work();
    } catch (const std::exception& exception) {
      log(std::string("Uncaught exception: ") + exception.what());
    } catch (...) {
      log("Uncaught exception of an unknown type");
    }
  } catch (...) {  // NOLINT(bugprone-empty-catch)
  }
}

}  // namespace ui
