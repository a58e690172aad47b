#include "programs/measure/Outputs.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "host/messages/Failure.h"

namespace host::measure {

std::vector<std::string> outputNames(const std::vector<std::filesystem::path>& files) {
  std::vector<std::string> names;
  std::set<std::string> taken;
  for (const auto& file : files) {
    const auto stem = file.stem().string();
    auto name = stem;
    for (int number = 2; !taken.insert(name).second; ++number) {
      name = stem + "-" + std::to_string(number);
    }
    names.push_back(name);
  }
  return names;
}

std::string outputName(const std::string& name, const EncoderSetting& setting,
                       const std::string& ending) {
  auto words = settingWords(setting);
  std::replace(words.begin(), words.end(), ',', '-');
  return name + "." + words + ending;
}

void makeFolder(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!error && std::filesystem::is_directory(folder, error)) return;
  throw Failure("cannot write to '" + folder.string() +
                "': " + (error ? error.message() : "it is no folder") + "; give a folder");
}

}  // namespace host::measure
