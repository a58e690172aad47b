#pragma once

#include <QPointer>
#include <QUrl>
#include <QWidget>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "audio_unit/Unit.h"
#include "skins/qt/Environment.h"
#include "ui/CustomView.h"
#include "view/fakes/CallLog.h"
#include "view/fakes/FakeRunLoop.h"

class QMessageBox;

namespace qt_test {

/// How a host differs from the default.
struct HostOptions {
  std::filesystem::path resources = VELK_BUNDLE_RESOURCES;
  std::string language = "en";
  std::string locale = "en_US";
  /// A run loop that several hosts share and that outlives them; null for one of the host's own.
  fakes::FakeRunLoop* runLoop = nullptr;
};

/// A temporary copy of the bundle's resources, which a test may change.
class ResourceFolder {
 public:
  ResourceFolder();
  ResourceFolder(const ResourceFolder&) = delete;
  ResourceFolder& operator=(const ResourceFolder&) = delete;
  ~ResourceFolder();

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path interfaceFile() const { return path_ / "Velk_NordaAACConverter.ui"; }
  /// Replaces every `from` in the interface file by `to`. Throws if there is none.
  void rewrite(const std::string& from, const std::string& to) const;
  /// Makes every text of every strings table half as long again.
  void lengthenTexts() const;

 private:
  std::filesystem::path path_;
};

/// A window with a view made by the real factory and the real loader. The test drives the view's
/// time and the delivery of the unit's events.
class Host {
 public:
  explicit Host(audio_unit::Unit& unit, const HostOptions& options = {});
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host();

  QWidget& window() { return *window_; }
  /// Null once the view has been destroyed.
  QWidget* view() const { return view_; }
  ui::NativeView& native();
  /// The widget, in the view or a sheet, that fills the outlet. Throws if there is none.
  QWidget& outlet(std::string_view name) const;
  template <class Widget>
  Widget& outlet(std::string_view name) const {
    return dynamic_cast<Widget&>(outlet(name));
  }
  /// The widget with that object name. Throws if there is none.
  QWidget& named(const char* name) const;

  /// The alert that is open over the view; null if there is none.
  QMessageBox* alert() const;

  void advance(std::chrono::milliseconds time);
  const std::vector<QUrl>& openedUrls() const { return openedUrls_; }

 private:
  fakes::CallLog log_;
  std::optional<fakes::FakeRunLoop> ownRunLoop_;
  fakes::FakeRunLoop& runLoop_;
  std::vector<QUrl> openedUrls_;
  std::unique_ptr<QWidget> window_;
  QPointer<QWidget> view_;
};

/// An environment for a loader without a host: these resources, in English, and no help browser.
ui::qt::Environment testEnvironment(const std::filesystem::path& resources);

void setLightPalette();
void setDarkPalette();

}  // namespace qt_test
