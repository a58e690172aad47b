#include "skins/appkit/FoundationAssertionHandler.h"

#include "skins/appkit/Exceptions.h"
#include "skins/appkit/FoundationNotificationCenter.h"
#include "skins/appkit/Strings.h"

namespace ui::appkit {

void FoundationAssertionHandler::handleFailure(const Assertion& assertion) {
  NSException* exception = catchException([&] {
    [[NSAssertionHandler currentHandler]
        handleFailureInMethod:NSSelectorFromString(nsString(assertion.operation))
                       object:nativeObject(assertion.object)
                         file:nsString(assertion.file)
                   lineNumber:assertion.line
                  description:@"%@", nsString(assertion.description)];
  });
  if (exception != nil) {
    throw AssertionFailure(assertion);
  }
}

}  // namespace ui::appkit
