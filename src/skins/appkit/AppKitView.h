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

/// What a view of an interface file tells. It deletes its listener when it goes.
class ViewListener {
 public:
  virtual ~ViewListener() = default;
  virtual void frameSizeRequested(NSSize size) = 0;
  virtual void viewWillMoveToSuperview(bool hasNewSuperview) = 0;
  virtual void viewDidMoveToWindow() = 0;
  virtual void keyDown(NSEvent* event) = 0;
};

}  // namespace ui::appkit

/// A view of an interface file that the core decides about: its size, its keys, its teardown.
@interface Velk_View : NSView <Velk_InterfaceObject> {
  ui::appkit::InterfaceObject* _interfaceObject;
  ui::appkit::ViewListener* _listener;
}
/// Null while the interface file is being loaded.
- (void)setListener:(ui::appkit::ViewListener*)listener;
/// Takes the size, whatever the core thinks of it.
- (void)applyFrameSize:(NSSize)size;
@end

namespace ui::appkit {

/// What stands behind the view of an interface file: the core's objects, their controls and
/// services. The view owns it from `handOver` on; until then it is the other way round.
class AppKitView final : public NativeView, public ViewListener {
 public:
  explicit AppKitView(NSBundle* bundle);
  ~AppKitView() override;

  // What an interface loader puts into it.
  ViewServices& services() { return services_; }
  ControlTable& controls() { return controls_; }
  /// Takes the view that the interface file holds, and what else stands at its top.
  void setView(Velk_View* view, NSArray* topLevelObjects);
  /// The core's objects, with every outlet filled. Their view is announced as this one.
  void setObjects(std::unique_ptr<InterfaceObjects> objects);
  /// One of the file's objects, whose actions reach the core as long as this lives.
  void connect(id<Velk_InterfaceObject> object, const Connections& declared);

  InterfaceObjects& objects() { return *objects_; }
  Velk_View* view() const { return view_; }

  /// The view, autoreleased, which owns everything else from now on.
  static Velk_View* handOver(std::unique_ptr<NativeView> native);

  void frameSizeRequested(NSSize size) override;
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
  // What everything else refers to goes last.
  Retained<NSArray*> topLevelObjects_;
  ViewServices services_;
  ControlTable controls_;
  std::vector<Retained<id>> connected_;
  std::unique_ptr<InterfaceObjects> objects_;
  /// Retained until the view owns this.
  Velk_View* view_ = nil;
  bool isViewOwner_ = false;
  bool isGoing_ = false;
  std::function<void(Size)> frameSizeObserver_;
};

}  // namespace ui::appkit
