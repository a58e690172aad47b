#include "programs/audition/Words.h"

#include <algorithm>
#include <cstdio>

#include "host/messages/Failure.h"

namespace host::audition {
namespace {

void writeLine(std::string text) {
  // A file name may hold anything.
  std::replace(text.begin(), text.end(), '\n', ' ');
  std::fprintf(stderr, "aac-audition: %s\n", text.c_str());
}

}  // namespace

void warn(const std::string& text) {
  writeLine("warning: " + text);
}

void complain(const std::string& text) {
  writeLine(text);
}

void say(const std::string& text) {
  if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) {
    throw Failure(Message::words("cannot write to standard output"));
  }
}

}  // namespace host::audition
