#include "skins/appkit/StandIns.h"

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

#include "skins/appkit/Strings.h"

using ui::appkit::nsString;
using ui::appkit::utf8;

namespace {

appkit_test::StandIns* current = nullptr;

IMP replaced(Class of, SEL selector, IMP with) {
  return method_setImplementation(class_getInstanceMethod(of, selector), with);
}

NSInteger runModal(NSSavePanel* panel, SEL /*selector*/) {
  auto& asked = current->savePanel();
  asked.proposed.push_back(utf8([panel nameFieldStringValue]));
  asked.titles.push_back(utf8([panel title]));
  asked.fileTypes.push_back(utf8([[panel allowedFileTypes] objectAtIndex:0]));
  return asked.answer ? NSOKButton : NSCancelButton;
}

NSURL* chosenURL(NSSavePanel* /*panel*/, SEL /*selector*/) {
  const auto& answer = current->savePanel().answer;
  return answer ? [NSURL fileURLWithPath:nsString(answer->string())] : nil;
}

template <class Function>
IMP implementation(Function* function) {
  return reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(function));
}

IMP realRunModal = nullptr;
IMP realURL = nullptr;

}  // namespace

/// The operation that the toolkit lacks here.
@implementation NSHelpManager (Velk_StandIn)

- (void)openHelpAnchor:(NSString*)anchor inBook:(NSString*)book {
  if (current != nullptr && [book length] > 0) {
    current->openedHelp().push_back(utf8(anchor));
  }
}

@end

namespace appkit_test {

StandIns::StandIns() {
  current = this;
  realRunModal = replaced([NSSavePanel class], @selector(runModal), implementation(&runModal));
  realURL = replaced([NSSavePanel class], @selector(URL), implementation(&chosenURL));
}

StandIns::~StandIns() {
  replaced([NSSavePanel class], @selector(runModal), realRunModal);
  replaced([NSSavePanel class], @selector(URL), realURL);
  current = nullptr;
}

}  // namespace appkit_test
