#include "skins/appkit/AppKitView.h"

#include <utility>

#include "skins/appkit/Adapter.h"
#include "skins/appkit/FoundationNotificationCenter.h"
#include "skins/appkit/KeyCodes.h"
#include "ui/Log.h"

namespace ui::appkit {

namespace {

/// The pointer by which the core's notifications identify the view.
const void* identityOf(const CustomView& view) {
  return dynamic_cast<const void*>(&view);
}

}  // namespace

AppKitView::AppKitView(NSBundle* bundle)
    : services_(bundle), controls_(services_.toolkit().localization) {}

AppKitView::~AppKitView() {
  // The teardown must no longer resize the view.
  isTearingDown_ = true;
  const void* const coreView = objects_ ? identityOf(objects_->view()) : nullptr;
  runGuarded([this] { objects_.reset(); });
  representObject(coreView, nil);
  services_.sheets().cancelAll();
  for (const auto& object : connected_) {
    [object.get() interfaceObject]->disconnect();
  }
  if (ownsView_) {
    [view_ setListener:nullptr];
    [view_ release];
  }
}

void AppKitView::setView(Velk_View* view, NSArray* topLevelObjects) {
  view_ = [view retain];
  ownsView_ = true;
  [view_ setListener:this];
  NSMutableArray* others = [NSMutableArray arrayWithArray:topLevelObjects];
  // Retaining the view as well would be a cycle.
  [others removeObjectIdenticalTo:view];
  topLevelObjects_ = Retained<NSArray*>(others);
}

void AppKitView::setObjects(std::unique_ptr<InterfaceObjects> objects) {
  objects_ = std::move(objects);
  representObject(identityOf(objects_->view()), view_);
}

void AppKitView::connect(id<Velk_InterfaceObject> object, const Connections& declared) {
  [object interfaceObject]->connect(declared, controls_);
  if (object != view_) {
    connected_.emplace_back(object);
  }
}

Velk_View* AppKitView::handOver(std::unique_ptr<NativeView> native) {
  auto& view = dynamic_cast<AppKitView&>(*native);
  view.ownsView_ = false;
  static_cast<void>(native.release());
  return [view.view_ autorelease];
}

void AppKitView::viewWillMoveToSuperview(bool hasNewSuperview) {
  runGuarded([&] { objects_->view().viewWillMoveToSuperview(hasNewSuperview); });
  if (!hasNewSuperview) {
    services_.sheets().cancelAll();
  }
}

void AppKitView::viewDidMoveToWindow() {
  runGuarded([this] { objects_->view().viewDidMoveToWindow(); });
}

void AppKitView::keyDown(NSEvent* event) {
  runGuarded([&] { objects_->view().keyDown({positionCode(event), event}); });
}

void AppKitView::requestFrameSize(NSSize size) {
  setFrameSize(sizeOf(size));
}

void AppKitView::setFrameSize(Size size) {
  if (objects_) {
    runGuarded([&] { objects_->view().setFrameSize(size); });
  } else {
    applyFrameSize(size);
  }
}

void AppKitView::setFrameSizeObserver(std::function<void(Size)> observer) {
  frameSizeObserver_ = std::move(observer);
}

Size AppKitView::frameSize() const {
  return sizeOf([view_ frame].size);
}

void AppKitView::applyFrameSize(Size size) {
  if (isTearingDown_) {
    return;
  }
  const bool changed = frameSize() != size;
  [view_ applyFrameSize:nsSize(size)];
  if (changed && frameSizeObserver_) {
    const std::function<void(Size)> observer = frameSizeObserver_;
    runGuarded([&] { observer(size); });
  }
}

bool AppKitView::hasWindow() const {
  return [view_ window] != nil;
}

void AppKitView::makeFirstResponder() {
  [[view_ window] makeFirstResponder:view_];
}

void AppKitView::interpretKeyEvents(const KeyEvent& event) {
  auto* native = static_cast<NSEvent*>(const_cast<void*>(event.native));
  [view_ interpretKeyEvents:[NSArray arrayWithObject:native]];
}

}  // namespace ui::appkit

@implementation Velk_View

- (instancetype)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) {
    _interfaceObject = ui::appkit::InterfaceObject::make().release();
  }
  return self;
}

- (void)dealloc {
  // While the controls still exist.
  delete std::exchange(_listener, nullptr);
  delete _interfaceObject;
  [super dealloc];
}

- (ui::appkit::InterfaceObject*)interfaceObject {
  return _interfaceObject;
}

- (void)setListener:(ui::appkit::ViewListener*)listener {
  _listener = listener;
}

- (void)applyFrameSize:(NSSize)size {
  // The superview shows through where the view was, and the subviews move.
  [[self superview] setNeedsDisplayInRect:[self frame]];
  [super setFrameSize:size];
  [[self superview] setNeedsDisplayInRect:[self frame]];
  [self setNeedsDisplay:YES];
}

- (void)setFrameSize:(NSSize)size {
  if (_listener != nullptr) {
    _listener->requestFrameSize(size);
  } else {
    [super setFrameSize:size];
  }
}

#ifdef GNUSTEP
// AppKit itself makes these two calls.
- (void)setFrame:(NSRect)frame {
  if (_listener != nullptr) {
    [self setFrameOrigin:frame.origin];
    [self setFrameSize:frame.size];
  } else {
    [super setFrame:frame];
  }
}
#endif

- (void)viewWillMoveToSuperview:(NSView*)superview {
  [super viewWillMoveToSuperview:superview];
  if (_listener != nullptr) {
    _listener->viewWillMoveToSuperview(superview != nil);
  }
}

- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
  if (_listener != nullptr) {
    _listener->viewDidMoveToWindow();
  }
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (void)keyDown:(NSEvent*)event {
  if (_listener != nullptr) {
    _listener->keyDown(event);
  } else {
    [super keyDown:event];
  }
}

@end
