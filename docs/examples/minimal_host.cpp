// usage: minimal-host [BUNDLE]     where BUNDLE is the folder Velk_NordaAACConverter.bundle
#include <dlfcn.h>

#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <string>

#include "MinimalUnit.h"
#include "ui/AUCocoaUIBase.h"

namespace {

/// The bundle's factory, or null. The bundle is never closed again: its code may be on the stack of
/// anything that a view started.
std::unique_ptr<AUCocoaUIBase> loadFactory(const std::string& bundle) {
  void* const code = dlopen((bundle + "/Velk_NordaAACConverter").c_str(), RTLD_NOW | RTLD_LOCAL);
  if (code == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return nullptr;
  }
  const auto instantiate =
      reinterpret_cast<VelkInstantiateClassFunction>(dlsym(code, kVelkInstantiateClassSymbol));
  return std::unique_ptr<AUCocoaUIBase>(
      instantiate != nullptr ? instantiate("Velk_AUAACConverterFactory") : nullptr);
}

/// Gives the view to the window, which follows its size from then on. Null if there is no view.
QWidget* addView(QMainWindow& window, AUCocoaUIBase& factory, AudioUnit unit) {
  std::unique_ptr<ui::NativeView> view = factory.uiViewForAudioUnit(unit, {});
  auto* const widget = dynamic_cast<QWidget*>(view.get());
  if (widget == nullptr) return nullptr;
  view->setFrameSizeObserver([&window](ui::Size) { window.adjustSize(); });
  window.setCentralWidget(widget);
  static_cast<void>(view.release());  // it belongs to the window now
  return widget;
}

/// For whoever runs this without looking at it: says what can be seen, then closes the window.
void sayAndClose(QMainWindow& window, const QWidget& view) {
  std::printf("the view is %s, %d x %d points\n", view.isVisible() ? "visible" : "hidden",
              view.width(), view.height());
  window.close();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);  // before the bundle is asked for anything
  const auto factory = loadFactory(argc > 1 ? argv[1] : VELK_VIEW_BUNDLE);
  if (factory == nullptr) return 1;
  std::printf("%s, interface version %u\n", factory->description().c_str(),
              factory->interfaceVersion());

  MinimalUnit unit;    // outlives the window
  QMainWindow window;  // and the window's end is the view's
  QWidget* const view = addView(window, *factory, &unit);
  if (view == nullptr) {
    std::fputs("there is no view; the log says why\n", stderr);
    return 1;
  }
  window.show();
  if (qEnvironmentVariableIsSet("MINIMAL_HOST_QUIT")) {
    QTimer::singleShot(0, view, [&] { sayAndClose(window, *view); });
  }
  // Qt's loop delivers the unit's events, too: the view has seen to that.
  return QApplication::exec();
}
