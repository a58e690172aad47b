#include "host/measure/Console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "host/Failure.h"
#include "host/measure/TextWidth.h"

namespace host::measure {
namespace {

constexpr std::size_t usualWidth = 80;

std::size_t widthOf(int descriptor) {
  if (::isatty(descriptor) == 0) return 0;
  winsize size{};
  if (::ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return usualWidth;
  return size.ws_col;
}

bool isDumb() {
  const char* const terminal = std::getenv("TERM");
  return terminal != nullptr && std::strcmp(terminal, "dumb") == 0;
}

}  // namespace

Console::Console() : showsProgress_(::isatty(STDERR_FILENO) != 0 && !isDumb()) {}

Console::~Console() {
  clearProgress();
}

void Console::say(const std::string& text) {
  clearProgress();
  if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) {
    throw Failure("cannot write to standard output");
  }
}

void Console::complain(const std::string& text) {
  clearProgress();
  std::fprintf(stderr, "aac-measure: %s\n", printable(text).c_str());
}

void Console::setProgress(const std::string& line) {
  if (!showsProgress_) return;
  std::fprintf(stderr, "\r%s\x1b[K", line.c_str());
  std::fflush(stderr);
  hasProgress_ = true;
}

void Console::clearProgress() {
  if (!hasProgress_) return;
  std::fputs("\r\x1b[K", stderr);
  std::fflush(stderr);
  hasProgress_ = false;
}

std::size_t Console::outputWidth() {
  return widthOf(STDOUT_FILENO);
}

std::size_t Console::errorWidth() {
  return widthOf(STDERR_FILENO);
}

bool Console::isColored() {
  const char* const refused = std::getenv("NO_COLOR");
  return ::isatty(STDOUT_FILENO) != 0 && !isDumb() && (refused == nullptr || *refused == '\0');
}

}  // namespace host::measure
