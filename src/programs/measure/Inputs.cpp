#include "programs/measure/Inputs.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <system_error>

namespace host::measure {
namespace {

namespace fs = std::filesystem;

bool isNamedLikeASound(const fs::path& path) {
  constexpr std::array<std::string_view, 16> endings = {
      ".wav",  ".wave", ".rf64", ".w64",  ".bwf", ".aif", ".aiff", ".aifc",
      ".flac", ".ogg",  ".oga",  ".opus", ".mp3", ".caf", ".au",   ".snd"};
  auto ending = path.extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return std::find(endings.begin(), endings.end(), ending) != endings.end();
}

bool isHidden(const fs::path& path) {
  return path.filename().string().starts_with(".");
}

std::string complaint(const fs::path& path, const std::string& why) {
  return "cannot read '" + path.string() + "': " + why;
}

void addFolder(const fs::path& folder, Inputs& inputs) {
  std::vector<fs::path> found;
  std::error_code error;
  fs::recursive_directory_iterator each(folder, error);
  while (!error && each != fs::recursive_directory_iterator()) {
    const auto& path = each->path();
    std::error_code unknown;
    if (isHidden(path)) {
      each.disable_recursion_pending();
    } else if (each->is_directory(unknown)) {
      // A folder that may not be read must not hide those after it.
      std::error_code closed;
      const fs::directory_iterator trial(path, closed);
      if (closed) {
        inputs.complaints.push_back(complaint(path, closed.message() + "; check its permissions"));
        each.disable_recursion_pending();
      }
    } else if (isNamedLikeASound(path)) {
      found.push_back(path);
    }
    each.increment(error);
  }
  if (error) {
    inputs.complaints.push_back(complaint(folder, error.message() + "; check its permissions"));
  } else if (found.empty()) {
    inputs.complaints.push_back(
        complaint(folder, "no sound file is in it; give WAV, AIFF, FLAC, Ogg or MP3 files"));
  }
  std::sort(found.begin(), found.end());
  inputs.files.insert(inputs.files.end(), found.begin(), found.end());
}

}  // namespace

Inputs inputsOf(const std::vector<fs::path>& arguments) {
  Inputs inputs;
  for (const auto& argument : arguments) {
    std::error_code error;
    if (fs::is_directory(argument, error)) {
      addFolder(argument, inputs);
    } else {
      inputs.files.push_back(argument);
    }
  }
  return inputs;
}

}  // namespace host::measure
