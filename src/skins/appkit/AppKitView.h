#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <memory>
#include <vector>

#include "skins/appkit/ControlTable.h"
#include "skins/appkit/InterfaceObject.h"
#include "skins/appkit/Retained.h"
#include "skins/appkit/ViewServices.h"
#include "ui/CustomView.h"
#include "ui/InterfaceFile.h"

namespace ui::appkit {

/// Receives what happens to a `Velk_View`, which deletes it in `dealloc`.
class ViewListener {
 public:
  virtual ~ViewListener() = default;
  virtual void requestFrameSize(NSSize size) = 0;
  virtual void viewWillMoveToSuperview(bool hasNewSuperview) = 0;
  virtual void viewDidMoveToWindow() = 0;
  virtual void keyDown(NSEvent* event) = 0;
};

}  // namespace ui::appkit

/// An interface file's view. The core decides on its size and gets its key presses.
@interface Velk_View : NSView <Velk_InterfaceObject> {
  ui::appkit::InterfaceObject* _interfaceObject;
  ui::appkit::ViewListener* _listener;
}
/// `dealloc` deletes the listener. Without one, as at first, this is an ordinary view.
- (void)setListener:(ui::appkit::ViewListener*)listener;
/// Sets the size without asking the core.
- (void)applyFrameSize:(NSSize)size;
@end

namespace ui::appkit {

/// What is behind an interface file's view: the core's objects, their controls and services. It
/// owns the view until `handOver`; from then on the view owns it.
class AppKitView final : public NativeView, public ViewListener {
 public:
  explicit AppKitView(NSBundle* bundle);
  ~AppKitView() override;

  // For the interface loader.
  ViewServices& services() { return services_; }
  ControlTable& controls() { return controls_; }
  /// Takes the interface file's view and its other top-level objects.
  void setView(Velk_View* view, NSArray* topLevelObjects);
  /// Takes the core's objects, all of whose outlets are filled. Notifications about the core's view
  /// are posted with this view as their object.
  void setObjects(std::unique_ptr<InterfaceObjects> objects);
  /// Makes the actions of one of the file's objects reach the core as long as this lives.
  void connect(id<Velk_InterfaceObject> object, const Connections& declared);

  InterfaceObjects& objects() { return *objects_; }
  Velk_View* view() const { return view_; }

  /// Returns the view, autoreleased, which owns everything else from now on.
  static Velk_View* handOver(std::unique_ptr<NativeView> native);

  void requestFrameSize(NSSize size) override;
  void viewWillMoveToSuperview(bool hasNewSuperview) override;
  void viewDidMoveToWindow() override;
  void keyDown(NSEvent* event) override;

  void setFrameSize(Size size) override;
  void setFrameSizeObserver(std::function<void(Size)> observer) override;
  Size frameSize() const override;
  void applyFrameSize(Size size) override;
  bool hasWindow() const override;
  void makeFirstResponder() override;
  void interpretKeyEvents(const KeyEvent& event) override;

 private:
  // In this order because members are destroyed last to first, and later ones use earlier ones.
  Retained<NSArray*> topLevelObjects_;
  ViewServices services_;
  ControlTable controls_;
  std::vector<Retained<id>> connected_;
  std::unique_ptr<InterfaceObjects> objects_;
  /// Retained as long as `ownsView_` is true.
  Velk_View* view_ = nil;
  bool ownsView_ = false;
  bool isTearingDown_ = false;
  std::function<void(Size)> frameSizeObserver_;
};

}  // namespace ui::appkit
