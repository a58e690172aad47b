#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ui/CustomView.h"
#include "ui/InterfaceFile.h"
#include "view/fakes/CallLog.h"
#include "view/fakes/FakeToolkit.h"

namespace fakes {

/// A view without a window system; it owns the controls and objects that an interface file makes.
class FakeNativeView final : public ui::NativeView {
 public:
  FakeNativeView(CallLog& log, FakeToolkit& toolkit);
  ~FakeNativeView() override;

  /// Puts the view under a parent as a host does, in a window or not.
  void moveToSuperview(bool inWindow);
  void removeFromSuperview();
  /// Presses the key at that position.
  void pressKey(std::uint16_t keyCode);

  /// The control behind an outlet, by "<object>.<outlet>", or behind a name that the interface file
  /// gives to a control without an outlet. An unknown name or another type throws.
  template <class Control>
  Control& control(std::string_view name) {
    return dynamic_cast<Control&>(*controls_.at(std::string(name)));
  }
  bool has(std::string_view name) const { return controls_.contains(std::string(name)); }

  /// Whether `applyFrameSize` throws.
  bool cannotResize = false;

  ui::InterfaceObjects& objects() { return *objects_; }
  void setObjects(std::unique_ptr<ui::InterfaceObjects> objects);
  void addControl(const std::string& name, std::unique_ptr<ui::Object> control);

  void setFrameSize(ui::Size size) override;
  void setFrameSizeObserver(std::function<void(ui::Size)> observer) override;
  ui::Size frameSize() const override { return size_; }
  void applyFrameSize(ui::Size size) override;
  bool hasWindow() const override { return hasWindow_; }
  void makeFirstResponder() override;
  void interpretKeyEvents(const ui::KeyEvent& event) override;

 private:
  CallLog& log_;
  FakeToolkit& toolkit_;
  ui::Size size_ = {560, 195};
  bool hasWindow_ = false;
  std::function<void(ui::Size)> observer_;
  std::map<std::string, std::unique_ptr<ui::Object>> controls_;
  /// After the controls, which the objects still use while they are destroyed.
  std::unique_ptr<ui::InterfaceObjects> objects_;
};

}  // namespace fakes
