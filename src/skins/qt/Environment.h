#pragma once

#include <QUrl>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ui/RunLoop.h"

namespace ui::qt {

/// What views need from outside. See `userEnvironment` for the real one; tests replace members.
struct Environment {
  /// The folder that holds the interface file, the strings tables and the help pages.
  std::filesystem::path resources;
  /// Codes of the user's languages, in order of preference.
  std::vector<std::string> languages;
  /// Locale of numbers and dates; empty for the user's own.
  std::string locale;
  /// Makes a run loop for one view; null for Qt's event loop. Whoever sets this must also deliver
  /// audio units' events to the main thread.
  std::function<std::unique_ptr<RunLoop>()> makeRunLoop;
  /// Shows a document to the user and returns whether it could; null for the desktop's own way.
  std::function<bool(const QUrl&)> openUrl;
};

/// The user's languages and locale, Qt's event loop and the desktop's way of opening documents.
Environment userEnvironment(std::filesystem::path resources);

/// The language codes ("de") of locale names ("de-DE"), in order and without duplicates.
std::vector<std::string> languageCodes(const std::vector<std::string>& locales);

}  // namespace ui::qt
