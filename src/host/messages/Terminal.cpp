#include "host/messages/Terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "host/messages/Failure.h"
#include "host/messages/TextWidth.h"

namespace host {
namespace {

constexpr std::size_t kUsualWidth = 80;

std::size_t widthOf(int descriptor) {
  if (::isatty(descriptor) == 0) return 0;
  winsize size{};
  if (::ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
  // A terminal on a serial line does not know its own size.
  const char* const columns = std::getenv("COLUMNS");
  std::size_t width = 0;
  if (columns != nullptr) std::from_chars(columns, columns + std::strlen(columns), width);
  return width > 0 ? width : kUsualWidth;
}

bool isDumb() {
  const char* const terminal = std::getenv("TERM");
  return terminal != nullptr && std::strcmp(terminal, "dumb") == 0;
}

}  // namespace

Terminal::Terminal(std::string program)
    : program_(std::move(program)), showsProgress_(::isatty(STDERR_FILENO) != 0 && !isDumb()) {}

Terminal::~Terminal() {
  removeProgress();
}

void Terminal::say(const std::string& text) {
  const std::lock_guard lock(mutex_);
  removeProgress();
  if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) {
    throw Failure(Message::words("cannot write to standard output"));
  }
}

void Terminal::complain(const std::string& text) {
  auto line = text;
  std::replace(line.begin(), line.end(), '\n', ' ');
  line = program_ + ": " + printable(line) + "\n";
  const std::lock_guard lock(mutex_);
  removeProgress();
  std::fputs(line.c_str(), stderr);
}

void Terminal::warn(const std::string& text) {
  complain("warning: " + text);
}

void Terminal::setProgress(const std::string& line) {
  if (!showsProgress_) return;
  const std::lock_guard lock(mutex_);
  std::fputs(("\r" + line + "\x1b[K").c_str(), stderr);
  hasProgress_ = true;
}

void Terminal::clearProgress() {
  const std::lock_guard lock(mutex_);
  removeProgress();
}

void Terminal::removeProgress() {
  if (!hasProgress_) return;
  std::fputs("\r\x1b[K", stderr);
  hasProgress_ = false;
}

std::size_t Terminal::outputWidth() {
  return widthOf(STDOUT_FILENO);
}

std::size_t Terminal::errorWidth() {
  return widthOf(STDERR_FILENO);
}

bool Terminal::isColored() {
  const char* const refused = std::getenv("NO_COLOR");
  return ::isatty(STDOUT_FILENO) != 0 && !isDumb() && (refused == nullptr || *refused == '\0');
}

}  // namespace host
