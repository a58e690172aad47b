#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "Program.h"

/// The JSON objects that a run has printed, one per line.
inline std::vector<nlohmann::json> rows(const Outcome& outcome) {
  std::vector<nlohmann::json> result;
  std::istringstream lines(outcome.out);
  for (std::string line; std::getline(lines, line);) {
    result.push_back(nlohmann::json::parse(line, nullptr, false));
  }
  return result;
}
