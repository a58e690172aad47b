#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Export.h"

namespace ui {

/// The resources that travel with a loaded bundle: a folder with interface files, help pages and a
/// folder "<language>.lproj" of strings tables for each language. Main thread only.
class UI_EXPORT Bundle {
 public:
  /// `languages` are codes such as "de" in the user's order of preference; the first that the
  /// bundle has is used, else "en". A code with a region, "de_AT" or "de-AT", settles for its
  /// language. Tables are read when they are first asked for.
  Bundle(std::filesystem::path resources, const std::vector<std::string>& languages);
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;
  virtual ~Bundle();

  const std::filesystem::path& resources() const;
  /// The language that is used.
  const std::string& language() const;

  /// The text for the key, UTF-8. A missing table, an unreadable one (logged once) or a missing key
  /// gives the key itself. A toolkit that has bundles of its own may look there.
  virtual std::string localizedString(std::string_view key, std::string_view table) const;

 private:
  class Tables;
  std::unique_ptr<Tables> tables_;
};

/// Replaces each "%@" in turn, and each "%1$@", "%2$@" … by place, with the arguments. "%%" gives a
/// percent sign; a placeholder without an argument stays as it is.
UI_EXPORT std::string formatted(std::string_view format, const std::vector<std::string>& arguments);

}  // namespace ui
