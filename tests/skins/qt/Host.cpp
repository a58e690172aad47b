#include "skins/qt/Host.h"

#include <QApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/RunLoop.h"
#include "skins/qt/QtInterfaceLoader.h"
#include "view/factory/Velk_AUAACConverterFactory.h"

namespace qt_test {

namespace {

/// Forwards everything to a run loop that outlives all views.
class BorrowedRunLoop final : public ui::RunLoop {
 public:
  explicit BorrowedRunLoop(ui::RunLoop& loop) : loop_(loop) {}
  std::unique_ptr<ui::Timer> scheduledTimer(double interval, std::function<void()> fire) override {
    return loop_.scheduledTimer(interval, std::move(fire));
  }
  std::unique_ptr<ui::Deferred> performLater(std::function<void()> work) override {
    return loop_.performLater(std::move(work));
  }

 private:
  ui::RunLoop& loop_;
};

std::string contents(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void write(const std::filesystem::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

QPalette palette(QColor window, QColor base, QColor text, QColor accent, QColor accentText) {
  QPalette palette(window, window);
  palette.setColor(QPalette::Base, base);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, text);
    QColor faint = text;
    faint.setAlphaF(0.45F);
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, accentText);
  return palette;
}

}  // namespace

ResourceFolder::ResourceFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "velk-qt-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("no temporary folder");
  }
  path_ = pattern;
  std::filesystem::copy(VELK_BUNDLE_RESOURCES, path_, std::filesystem::copy_options::recursive);
}

ResourceFolder::~ResourceFolder() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
}

void ResourceFolder::rewrite(const std::string& from, const std::string& to) const {
  std::string text = contents(interfaceFile());
  std::size_t place = text.find(from);
  if (place == std::string::npos) {
    throw std::invalid_argument("the interface file has no " + from);
  }
  for (; place != std::string::npos; place = text.find(from, place + to.size())) {
    text.replace(place, from.size(), to);
  }
  write(interfaceFile(), text);
}

void ResourceFolder::lengthenTexts() const {
  static const QRegularExpression entry(
      QStringLiteral(R"re(^("(?:[^"\\]|\\.)*" = ")((?:[^"\\]|\\.)*)";$)re"));
  for (const auto& folder : std::filesystem::directory_iterator(path_)) {
    if (folder.path().extension() != ".lproj") {
      continue;
    }
    for (const auto& table : std::filesystem::directory_iterator(folder)) {
      std::istringstream lines(contents(table));
      std::string longer;
      for (std::string line; std::getline(lines, line);) {
        const QRegularExpressionMatch match = entry.match(QString::fromStdString(line));
        if (match.hasMatch()) {
          const QString text = match.captured(2);
          // Repeats the text's own letters, so that its width grows like a translation's.
          QString letters = text;
          letters.remove(QLatin1String("%@")).remove(QLatin1Char('%')).remove(QLatin1Char('\\'));
          const qsizetype more = (letters.size() + 1) / 2;
          line = (match.captured(1) + text + letters.left(more)).toStdString() + "\";";
        }
        longer += line + "\n";
      }
      write(table, longer);
    }
  }
}

Host::Host(audio_unit::Unit& unit, const HostOptions& options)
    : runLoop_(options.runLoop != nullptr ? *options.runLoop : ownRunLoop_.emplace(log_)) {
  // Only the test may deliver units' events; this keeps Qt's pump away.
  CFRunLoopGetCurrent()->setWakeUp([] {});
  ui::qt::Environment environment = testEnvironment(options.resources);
  environment.languages = {options.language};
  environment.locale = options.locale;
  environment.makeRunLoop = [this] { return std::make_unique<BorrowedRunLoop>(runLoop_); };
  environment.openUrl = [this](const QUrl& url) {
    openedUrls_.push_back(url);
    return true;
  };
  velk::Velk_AUAACConverterFactory factory(
      std::make_unique<ui::qt::QtInterfaceLoader>(std::move(environment)));
  std::unique_ptr<ui::NativeView> native = factory.uiViewForAudioUnit(&unit, {0, 0});
  if (!native) {
    throw std::runtime_error("the factory gave no view");
  }
  window_ = std::make_unique<QWidget>();
  view_ = dynamic_cast<QWidget*>(native.release());
  view_->setParent(window_.get());
  const auto fit = [this](ui::Size size) {
    window_->resize(static_cast<int>(size.width), static_cast<int>(size.height));
  };
  this->native().setFrameSizeObserver(fit);
  fit(this->native().frameSize());
  view_->show();
  window_->show();
  window_->activateWindow();
  QApplication::processEvents();
}

Host::~Host() {
  // A view without a parent is not destroyed with the window.
  if (view_ != nullptr && view_->parentWidget() == nullptr) {
    delete view_;
  }
  window_.reset();
  CFRunLoopGetCurrent()->setWakeUp({});
}

ui::NativeView& Host::native() {
  return dynamic_cast<ui::NativeView&>(*view_);
}

QWidget& Host::outlet(std::string_view name) const {
  const QString wanted = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
  for (QWidget* widget : view_->findChildren<QWidget*>()) {
    if (widget->property("outlets").toString().split(' ').contains(wanted)) {
      return *widget;
    }
  }
  throw std::out_of_range("no widget fills outlet " + std::string(name));
}

QWidget& Host::named(const char* name) const {
  if (auto* widget = view_->findChild<QWidget*>(name)) {
    return *widget;
  }
  throw std::out_of_range(std::string("no widget is named ") + name);
}

QMessageBox* Host::alert() const {
  for (auto* box : view_->findChildren<QMessageBox*>()) {
    if (box->isVisible()) {
      return box;
    }
  }
  return nullptr;
}

void Host::advance(std::chrono::milliseconds time) {
  runLoop_.advance(time);
  QApplication::processEvents();
}

ui::qt::Environment testEnvironment(const std::filesystem::path& resources) {
  ui::qt::Environment environment;
  environment.resources = resources;
  environment.languages = {"en"};
  environment.locale = "en_US";
  environment.openUrl = [](const QUrl&) { return true; };
  return environment;
}

void setLightPalette() {
  QApplication::setPalette(palette(0xF3F4F6, Qt::white, 0x1B1E24, 0x2D6FD8, Qt::white));
}

void setDarkPalette() {
  QApplication::setPalette(palette(0x22252A, 0x1B1D21, 0xECEEF1, 0x5B93F0, 0x10131A));
}

}  // namespace qt_test
