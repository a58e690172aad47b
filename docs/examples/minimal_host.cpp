// usage: minimal-host BUNDLE     where BUNDLE is the folder Velk_NordaAACConverter.bundle
#include <dlfcn.h>

#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <string>

#include "GainUnit.h"
#include "ui/AUCocoaUIBase.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);  // before the bundle is asked for anything
  if (argc < 2) {
    std::fputs("usage: minimal-host BUNDLE\n", stderr);
    return 2;
  }
  const std::string program = std::string(argv[1]) + "/Velk_NordaAACConverter";
  void* bundle = dlopen(program.c_str(), RTLD_NOW);  // and never closed
  if (bundle == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  const auto instantiate =
      reinterpret_cast<VelkInstantiateClassFunction>(dlsym(bundle, kVelkInstantiateClassSymbol));
  const std::unique_ptr<AUCocoaUIBase> factory(
      instantiate != nullptr ? instantiate("Velk_AUAACConverterFactory") : nullptr);
  if (factory == nullptr) {
    std::fprintf(stderr, "%s has no view factory\n", argv[1]);
    return 1;
  }

  GainUnit unit;  // has to live longer than the view is in its window
  QMainWindow window;
  std::unique_ptr<ui::NativeView> view = factory->uiViewForAudioUnit(&unit, {});
  if (view == nullptr) {
    std::fputs("there is no view; the log says why\n", stderr);
    return 1;
  }
  auto* widget = dynamic_cast<QWidget*>(view.get());
  view->setFrameSizeObserver([&window](ui::Size) { window.adjustSize(); });
  window.setCentralWidget(widget);
  view.release();  // the window owns it now
  window.show();
  std::printf("%s, interface version %u\n", factory->description().c_str(),
              factory->interfaceVersion());
  if (qEnvironmentVariableIsSet("MINIMAL_HOST_QUIT"))
    QTimer::singleShot(0, &window, &QWidget::close);
  return QApplication::exec();
}
