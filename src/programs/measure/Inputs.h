#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host::measure {

/// The files that the arguments stand for, in the order of the arguments. A folder stands for all
/// sound files in and below it that are not hidden, sorted by path. Nothing is left out silently:
/// `complaints` names folders that are empty or cannot be read.
struct Inputs {
  std::vector<std::filesystem::path> files;
  std::vector<std::string> complaints;
};

Inputs inputsOf(const std::vector<std::filesystem::path>& arguments);

}  // namespace host::measure
