#include "ui/HelpPage.h"

#include <system_error>

#include "ui/Bundle.h"

namespace ui {

std::filesystem::path helpPage(const Bundle& bundle) {
  const std::filesystem::path folder = bundle.resources() / "help";
  std::filesystem::path page = folder / ("index." + bundle.language() + ".html");
  std::error_code error;
  return std::filesystem::exists(page, error) ? page : folder / "index.html";
}

}  // namespace ui
