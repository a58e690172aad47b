#include "skins/appkit/AppKitSheets.h"

#include <utility>

#include "skins/appkit/ButtonAdapter.h"
#include "skins/appkit/SavePanel.h"
#include "skins/appkit/SheetAdapter.h"
#include "skins/appkit/Strings.h"
#include "ui/Log.h"
#include "ui/RunLoop.h"

namespace ui::appkit {

/// Receives the answer to an alert.
class AlertReceiver {
 public:
  virtual ~AlertReceiver() = default;
  virtual void alertDidEnd(int code) = 0;
};

}  // namespace ui::appkit

@interface Velk_AlertDelegate : NSObject {
  ui::appkit::AlertReceiver* _receiver;
}
/// The receiver is not owned; null stops it from being called.
- (void)setReceiver:(ui::appkit::AlertReceiver*)receiver;
- (void)alert:(id)alert returnCode:(NSInteger)code contextInfo:(void*)contextInfo;
@end

@implementation Velk_AlertDelegate

- (void)setReceiver:(ui::appkit::AlertReceiver*)receiver {
  _receiver = receiver;
}

- (void)alert:(id)alert returnCode:(NSInteger)code contextInfo:(void*)contextInfo {
  ui::appkit::AlertReceiver* const receiver = _receiver;
  if (receiver != nullptr) {
    ui::runGuarded([&] { receiver->alertDidEnd(static_cast<int>(code)); });
  }
}

@end

namespace ui::appkit {

namespace {

class AlertWindow final : public Window {};

NSWindow* windowOf(Sheet& sheet) {
  return dynamic_cast<SheetAdapter&>(sheet).window();
}

NSWindow* windowContaining(View& control) {
  return [dynamic_cast<ButtonAdapter&>(control).control() window];
}

#ifdef GNUSTEP

void showSheet(NSWindow* sheet, NSWindow* parent) {
  [NSApp beginSheet:sheet
      modalForWindow:parent
       modalDelegate:nil
      didEndSelector:nullptr
         contextInfo:nullptr];
}

void endShownSheet(NSWindow* sheet, NSWindow* /*parent*/, int code) {
  [NSApp endSheet:sheet returnCode:code];
  // The sheet's loop notices that it has ended only when it gets an event.
  [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                      location:NSZeroPoint
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                       subtype:0
                                         data1:0
                                         data2:0]
           atStart:NO];
}

void showAlert(const AlertTexts& texts, NSWindow* parent, Velk_AlertDelegate* delegate) {
  NSBeginAlertSheet(nsString(texts.title), nsString(texts.defaultButton),
                    nsString(texts.alternateButton), nil, parent, delegate, nullptr,
                    @selector(alert:returnCode:contextInfo:), nullptr, @"%@",
                    nsString(texts.message));
}

#else

void showSheet(NSWindow* sheet, NSWindow* parent) {
  [parent beginSheet:sheet completionHandler:nil];
}

void endShownSheet(NSWindow* sheet, NSWindow* parent, int code) {
  [parent endSheet:sheet returnCode:code];
}

void showAlert(const AlertTexts& texts, NSWindow* parent, Velk_AlertDelegate* delegate) {
  NSAlert* alert = [[[NSAlert alloc] init] autorelease];
  // Without a title the message takes its place.
  [alert setMessageText:nsString(texts.title.empty() ? texts.message : texts.title)];
  [alert setInformativeText:nsString(texts.title.empty() ? std::string() : texts.message)];
  [alert addButtonWithTitle:nsString(texts.defaultButton)];
  [alert addButtonWithTitle:nsString(texts.alternateButton)];
  [alert beginSheetModalForWindow:parent
                completionHandler:^(NSModalResponse response) {
                  const bool alternate = response == NSAlertSecondButtonReturn;
                  [delegate alert:alert
                       returnCode:alternate ? kAlertAlternateReturn : kAlertDefaultReturn
                      contextInfo:nullptr];
                }];
}

#endif

}  // namespace

class AppKitSheets::Alert final : public AlertReceiver {
 public:
  Alert(NSWindow* parent, std::function<void(int code)> didEnd)
      : parent_(parent),
        didEnd_(std::move(didEnd)),
        delegate_(Retained<Velk_AlertDelegate*>::adopt([[Velk_AlertDelegate alloc] init])) {
    [delegate_.get() setReceiver:this];
  }
  Alert(const Alert&) = delete;
  Alert& operator=(const Alert&) = delete;
  ~Alert() override { [delegate_.get() setReceiver:nullptr]; }

  void show(const AlertTexts& texts) {
    // On GNUstep `showAlert` returns only when the alert has ended; this may be destroyed by then.
    const Retained<Velk_AlertDelegate*> delegate = delegate_;
    const Retained<NSWindow*> parent(parent_);
    pendingShow.reset();
    showAlert(texts, parent.get(), delegate.get());
  }

  void cancel() {
    [delegate_.get() setReceiver:nullptr];
    NSWindow* shown = [parent_ attachedSheet];
    if (!pendingShow && shown != nil) {
      endShownSheet(shown, parent_, kAlertAlternateReturn);
      [shown orderOut:nil];
    }
  }

  void alertDidEnd(int code) override {
    // Call a copy, because the answer destroys this object.
    const std::function<void(int)> didEnd = didEnd_;
    didEnd(code);
  }

  /// Set until the alert is shown.
  std::unique_ptr<Deferred> pendingShow;

 private:
  NSWindow* parent_;
  std::function<void(int code)> didEnd_;
  Retained<Velk_AlertDelegate*> delegate_;
};

AppKitSheets::AppKitSheets(RunLoop& runLoop) : runLoop_(runLoop) {}

AppKitSheets::~AppKitSheets() {
  cancelAll();
}

void AppKitSheets::cancelAll() {
  for (auto& [sheet, opened] : std::exchange(open_, {})) {
    if (!opened.pendingShow) {
      endShownSheet(windowOf(*sheet), opened.parent, kAlertAlternateReturn);
      [windowOf(*sheet) orderOut:nil];
    }
  }
  if (const std::unique_ptr<Alert> alert = std::exchange(alert_, nullptr)) {
    alert->cancel();
  }
}

void AppKitSheets::beginSheet(Sheet& sheet, View& control, std::function<void(int code)> didEnd) {
  NSWindow* const parent = windowContaining(control);
  OpenSheet& opened = open_[&sheet];
  opened.parent = parent;
  opened.didEnd = std::move(didEnd);
#ifdef GNUSTEP
  NSWindow* const window = windowOf(sheet);
  OpenSheet* const waiting = &opened;
  opened.pendingShow = runLoop_.performLater([=] {
    const Retained<NSWindow*> sheetWhileShown(window);
    const Retained<NSWindow*> parentWhileShown(parent);
    waiting->pendingShow.reset();
    showSheet(window, parent);
  });
#else
  showSheet(windowOf(sheet), parent);
#endif
}

void AppKitSheets::endSheet(Sheet& sheet, int code) {
  const auto found = open_.find(&sheet);
  if (found == open_.end()) {
    return;
  }
  const OpenSheet closed = std::move(found->second);
  open_.erase(found);
  if (!closed.pendingShow) {
    endShownSheet(windowOf(sheet), closed.parent, code);
  }
  if (closed.didEnd) {
    closed.didEnd(code);
  }
}

void AppKitSheets::orderOut(Sheet& sheet) {
  [windowOf(sheet) orderOut:nil];
}

void AppKitSheets::beginAlertSheet(const AlertTexts& texts, View& control,
                                   std::function<void(Window& alert, int code)> didEnd) {
  alert_ = std::make_unique<Alert>(windowContaining(control), [=, this](int code) {
    alert_.reset();
    AlertWindow window;
    didEnd(window, code);
  });
#ifdef GNUSTEP
  alert_->pendingShow = runLoop_.performLater([=, this] { alert_->show(texts); });
#else
  alert_->show(texts);
#endif
}

std::optional<std::filesystem::path> AppKitSheets::runSavePanel(const SavePanelTexts& texts,
                                                                View& /*control*/) {
  return appkit::runSavePanel(texts);
}

}  // namespace ui::appkit
