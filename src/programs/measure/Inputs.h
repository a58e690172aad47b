#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host::measure {

/// The files that the arguments stand for, in their order; those of a folder are all sound files in
/// and below it that are not hidden, by path. Nothing is left out silently: what a folder lacks or
/// refuses is told in `complaints`.
struct Inputs {
  std::vector<std::filesystem::path> files;
  std::vector<std::string> complaints;
};

Inputs inputsOf(const std::vector<std::filesystem::path>& arguments);

}  // namespace host::measure
