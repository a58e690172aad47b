#include "Figure.h"

#include <cstdio>
#include <utility>

namespace figures {
namespace {

std::string textOf(const char* relation, double goal) {
  char text[32];
  std::snprintf(text, sizeof text, "%s %g", relation, goal);
  return text;
}

}  // namespace

Row atMost(std::string name, double value, double goal, std::string unit) {
  return {std::move(name), value, std::move(unit), textOf("<=", goal), value <= goal};
}

Row atLeast(std::string name, double value, double goal, std::string unit) {
  return {std::move(name), value, std::move(unit), textOf(">=", goal), value >= goal};
}

}  // namespace figures
