#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Export.h"

namespace ui {

/// The resources of a loaded bundle: a folder with interface files, help pages and, for each
/// language, a folder "<language>.lproj" of strings tables. Main thread only.
class UI_EXPORT Bundle {
 public:
  /// `languages` are codes such as "de" in the user's order of preference; the first one that the
  /// bundle has is used, or "en". A code with a region ("de_AT", "de-AT") falls back to its
  /// language. Tables are read on first use.
  Bundle(std::filesystem::path resources, const std::vector<std::string>& languages);
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;
  virtual ~Bundle();

  const std::filesystem::path& resources() const;
  /// The language in use.
  const std::string& language() const;

  /// The text for the key, UTF-8. A missing table, an unreadable one (logged once) or a missing key
  /// gives the key itself. A skin may override this to ask its toolkit's own bundles.
  virtual std::string localizedString(std::string_view key, std::string_view table) const;

 private:
  class Tables;
  std::unique_ptr<Tables> tables_;
};

/// Replaces each "%@" with the next argument and each "%1$@", "%2$@" … with the argument of that
/// number. "%%" gives a percent sign; a placeholder without an argument stays as it is.
UI_EXPORT std::string formatted(std::string_view format, const std::vector<std::string>& arguments);

}  // namespace ui
