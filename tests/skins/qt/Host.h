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

/// What differs between the hosts of a test.
struct HostOptions {
  std::filesystem::path resources = VELK_BUNDLE_RESOURCES;
  std::string language = "en";
  std::string locale = "en_US";
  /// A clock that several hosts share and that outlives them; null for one of the host's own.
  fakes::FakeRunLoop* runLoop = nullptr;
};

/// A copy of the bundle's resources that lives as long as this object. Its files may be changed.
class ResourceFolder {
 public:
  ResourceFolder();
  ResourceFolder(const ResourceFolder&) = delete;
  ResourceFolder& operator=(const ResourceFolder&) = delete;
  ~ResourceFolder();

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path interfaceFile() const { return path_ / "Velk_NordaAACConverter.ui"; }
  /// The interface file's text with every `from` replaced; a `from` that is not there throws.
  void rewrite(const std::string& from, const std::string& to) const;
  /// Makes every text of every strings table half as long again.
  void lengthenTexts() const;

 private:
  std::filesystem::path path_;
};

/// A window with a view that the real factory and the real loader made, bound to a unit whose
/// events and whose time the test drives.
class Host {
 public:
  explicit Host(audio_unit::Unit& unit, const HostOptions& options = {});
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host();

  QWidget& window() { return *window_; }
  /// Null once it has been destroyed.
  QWidget* view() const { return view_; }
  ui::NativeView& native();
  /// The widget whose `outlets` name it, in the view or a sheet. Throws if there is none.
  QWidget& outlet(std::string_view name) const;
  template <class Widget>
  Widget& outlet(std::string_view name) const {
    return dynamic_cast<Widget&>(outlet(name));
  }
  /// The widget of that object name. Throws if there is none.
  QWidget& named(const char* name) const;

  /// The alert that is open over the view; null while there is none.
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

/// An environment for a loader without a host: that folder, that language, no real help browser.
ui::qt::Environment testEnvironment(const std::filesystem::path& resources);

void setLightPalette();
void setDarkPalette();

}  // namespace qt_test
