#include "ui/Bundle.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "ui/Log.h"
#include "ui/StringsTable.h"

namespace ui {

namespace {

constexpr const char* kFallbackLanguage = "en";

std::filesystem::path languageFolder(const std::filesystem::path& resources,
                                     const std::string& language) {
  return resources / (language + ".lproj");
}

std::string chooseLanguage(const std::filesystem::path& resources,
                           const std::vector<std::string>& languages) {
  const auto isThere = [&resources](const std::string& language) {
    std::error_code error;
    return !language.empty() && language.find('/') == std::string::npos &&
           std::filesystem::is_directory(languageFolder(resources, language), error);
  };
  for (const std::string& language : languages) {
    if (isThere(language)) {
      return language;
    }
    // "de_AT" and "de-AT" fall back to "de".
    std::string withoutRegion = language.substr(0, language.find_first_of("_-.@"));
    if (isThere(withoutRegion)) {
      return withoutRegion;
    }
  }
  return kFallbackLanguage;
}

}  // namespace

class Bundle::Tables {
 public:
  Tables(std::filesystem::path resources, const std::vector<std::string>& languages)
      : resources_(std::move(resources)), language_(chooseLanguage(resources_, languages)) {}

  const std::filesystem::path& resources() const { return resources_; }
  const std::string& language() const { return language_; }

  const StringsTable& table(std::string_view name) {
    const auto known = tables_.find(name);
    if (known != tables_.end()) {
      return known->second;
    }
    return tables_.emplace(std::string(name), read(name)).first->second;
  }

 private:
  StringsTable read(std::string_view name) const {
    const std::filesystem::path file =
        languageFolder(resources_, language_) / (std::string(name) + ".strings");
    std::error_code error;
    if (!std::filesystem::exists(file, error) && !error) {
      return {};
    }
    try {
      return readStringsTable(file);
    } catch (const std::runtime_error& fault) {
      log(std::string("Unable to read the strings table ") + fault.what());
      return {};
    }
  }

  std::filesystem::path resources_;
  std::string language_;
  std::map<std::string, StringsTable, std::less<>> tables_;
};

Bundle::Bundle(std::filesystem::path resources, const std::vector<std::string>& languages)
    : tables_(std::make_unique<Tables>(std::move(resources), languages)) {}

Bundle::~Bundle() = default;

const std::filesystem::path& Bundle::resources() const {
  return tables_->resources();
}

const std::string& Bundle::language() const {
  return tables_->language();
}

std::string Bundle::localizedString(std::string_view key, std::string_view table) const {
  const StringsTable& texts = tables_->table(table);
  const auto text = texts.find(key);
  return text == texts.end() ? std::string(key) : text->second;
}

}  // namespace ui
