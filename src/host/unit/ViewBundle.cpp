#include "host/unit/ViewBundle.h"

#include <dlfcn.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "host/messages/Failure.h"
#include "ui/Log.h"

namespace host {
namespace {

constexpr const char* kFactoryClass = "Velk_AUAACConverterFactory";
constexpr ui::Size kWantedSize = {560, 195};

[[noreturn]] void refuse(const std::filesystem::path& bundle, const Message& why) {
  throw Failure(Message::words("cannot show the converter's view: %1; build or install '%2' again"),
                {why, bundle.string()});
}

std::string lastError() {
  const char* const text = ::dlerror();
  return text != nullptr ? text : "unknown error";
}

/// Keeps what is logged while it lives, to pass it on to the earlier sink or to say it otherwise.
class HeldLog {
 public:
  HeldLog() : earlier_(ui::setLogSink([this](std::string_view text) { add(text); })) {}
  HeldLog(const HeldLog&) = delete;
  HeldLog& operator=(const HeldLog&) = delete;
  ~HeldLog() {
    ui::setLogSink(std::move(earlier_));
    for (const auto& line : lines_) ui::log(line);
  }

  /// Everything on one line; it is not logged any more.
  std::string taken() {
    std::string text;
    for (const auto& line : std::exchange(lines_, {})) text += (text.empty() ? "" : "; ") + line;
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
  }

 private:
  void add(std::string_view text) { lines_.emplace_back(text); }

  std::vector<std::string> lines_;
  ui::LogSink earlier_;
};

}  // namespace

ViewBundle::ViewBundle(const std::filesystem::path& bundle) : bundle_(bundle) {
  const auto program = bundle / bundle.stem();
  std::error_code error;
  if (!std::filesystem::exists(program, error))
    refuse(bundle, Message::words("its bundle is missing"));
  // Never closed: see the class.
  void* const library = ::dlopen(program.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr)
    refuse(bundle, {Message::words("its bundle cannot be loaded (%1)"), {lastError()}});
  const auto instantiate =
      reinterpret_cast<VelkInstantiateClassFunction>(::dlsym(library, kVelkInstantiateClassSymbol));
  if (instantiate == nullptr) refuse(bundle, Message::words("its bundle has no entry"));
  factory_.reset(instantiate(kFactoryClass));
  if (!factory_) refuse(bundle, Message::words("its bundle has no factory"));
}

ViewBundle::~ViewBundle() = default;

std::unique_ptr<ui::NativeView> ViewBundle::viewForUnit(AudioUnit unit) {
  HeldLog log;
  auto view = factory_->uiViewForAudioUnit(unit, kWantedSize);
  if (!view) {
    const auto why = log.taken();
    refuse(bundle_, why.empty() ? Message::words("its bundle gave none") : Message(why));
  }
  return view;
}

std::filesystem::path viewBundlePath() {
  const auto top = std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path();
  const auto installed = top / VELK_INSTALLED_BUNDLE;
  std::error_code error;
  return std::filesystem::exists(installed, error) ? installed
                                                   : top / "bundle" / installed.filename();
}

}  // namespace host
