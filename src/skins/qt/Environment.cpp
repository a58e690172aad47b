#include "skins/qt/Environment.h"

#include <QLocale>
#include <algorithm>
#include <utility>

namespace ui::qt {

std::vector<std::string> languageCodes(const std::vector<std::string>& locales) {
  std::vector<std::string> codes;
  for (const std::string& locale : locales) {
    std::string code = locale.substr(0, locale.find_first_of("-_.@"));
    if (!code.empty() && std::find(codes.begin(), codes.end(), code) == codes.end()) {
      codes.push_back(std::move(code));
    }
  }
  return codes;
}

Environment userEnvironment(std::filesystem::path resources) {
  Environment environment;
  environment.resources = std::move(resources);
  std::vector<std::string> locales;
  for (const QString& locale : QLocale::system().uiLanguages()) {
    locales.push_back(locale.toStdString());
  }
  environment.languages = languageCodes(locales);
  return environment;
}

}  // namespace ui::qt
