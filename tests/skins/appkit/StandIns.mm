#include "skins/appkit/StandIns.h"

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

#include "skins/appkit/Strings.h"

using ui::appkit::nsString;
using ui::appkit::utf8;

namespace {

appkit_test::StandIns* current = nullptr;

/// Returns the method's former implementation.
IMP replaceMethod(Class of, SEL selector, IMP with) {
  return method_setImplementation(class_getInstanceMethod(of, selector), with);
}

NSInteger runModal(NSSavePanel* panel, SEL /*selector*/) {
  auto& standIn = current->savePanel();
  standIn.proposed.push_back(utf8([panel nameFieldStringValue]));
  standIn.titles.push_back(utf8([panel title]));
  standIn.fileTypes.push_back(utf8([[panel allowedFileTypes] objectAtIndex:0]));
  return standIn.answer ? NSOKButton : NSCancelButton;
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

/// An operation that GNUstep lacks.
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
  realRunModal = replaceMethod([NSSavePanel class], @selector(runModal), implementation(&runModal));
  realURL = replaceMethod([NSSavePanel class], @selector(URL), implementation(&chosenURL));
}

StandIns::~StandIns() {
  replaceMethod([NSSavePanel class], @selector(runModal), realRunModal);
  replaceMethod([NSSavePanel class], @selector(URL), realURL);
  current = nullptr;
}

}  // namespace appkit_test
