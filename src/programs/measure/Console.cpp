#include "programs/measure/Console.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "host/messages/Failure.h"
#include "programs/measure/TextWidth.h"

namespace host::measure {
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

Console::Console() : showsProgress_(::isatty(STDERR_FILENO) != 0 && !isDumb()) {
  const int descriptor = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
  if (descriptor >= 0) error_.reset(::fdopen(descriptor, "w"));
}

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
  writeError("aac-measure: " + printable(text) + "\n");
}

void Console::writeError(const std::string& text) {
  if (!error_) return;
  std::fputs(text.c_str(), error_.get());
  std::fflush(error_.get());
}

void Console::setProgress(const std::string& line) {
  if (!showsProgress_) return;
  writeError("\r" + line + "\x1b[K");
  hasProgress_ = true;
}

void Console::clearProgress() {
  if (!hasProgress_) return;
  writeError("\r\x1b[K");
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
