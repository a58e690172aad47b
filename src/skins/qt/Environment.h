#pragma once

#include <QUrl>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ui/RunLoop.h"

namespace ui::qt {

/// What views take from the world around them. `userEnvironment` gives the real one; a test may
/// replace any member.
struct Environment {
  /// The folder that holds the interface file, the strings tables and the help pages.
  std::filesystem::path resources;
  /// Codes of the user's languages, the preferred one first.
  std::vector<std::string> languages;
  /// Locale of numbers and dates; empty for the user's own.
  std::string locale;
  /// A run loop for one view; null for Qt's event loop. Whoever gives one delivers the events of
  /// audio units to the main thread as well.
  std::function<std::unique_ptr<RunLoop>()> makeRunLoop;
  /// Shows a document to the user; null for the desktop's own way. False when it could not.
  std::function<bool(const QUrl&)> openUrl;
};

Environment userEnvironment(std::filesystem::path resources);

/// Codes such as "de" for locale names such as "de-DE", in their order and without repetition.
std::vector<std::string> languageCodes(const std::vector<std::string>& locales);

}  // namespace ui::qt
