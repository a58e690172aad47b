#include "ui/Captions.h"

#include "ui/Bundle.h"

namespace ui {

std::string caption(const Bundle& bundle, std::string_view key) {
  return key.empty() ? std::string() : bundle.localizedString(key, kStringsTable);
}

std::string captionParts(const Bundle& bundle, std::string_view keys) {
  constexpr std::string_view kSeparator = ", ";
  std::string name;
  while (!keys.empty()) {
    const std::string_view part = keys.substr(0, keys.find(kSeparator));
    if (!part.empty()) {
      name += (name.empty() ? "" : kSeparator);
      name += caption(bundle, part);
    }
    keys.remove_prefix(part.size() < keys.size() ? part.size() + kSeparator.size() : part.size());
  }
  return name;
}

}  // namespace ui
