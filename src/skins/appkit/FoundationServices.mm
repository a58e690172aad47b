#include "skins/appkit/FoundationServices.h"

#import <Foundation/Foundation.h>

#include <utility>

#include "skins/appkit/FoundationAssertionHandler.h"
#include "skins/appkit/FoundationNotificationCenter.h"
#include "skins/appkit/Strings.h"
#include "ui/Log.h"

namespace ui::appkit {

namespace {

void useSystemLog() {
  LogSink earlier = setLogSink([](std::string_view text) { NSLog(@"%@", nsString(text)); });
  if (earlier) {
    setLogSink(std::move(earlier));
  }
}

}  // namespace

void useFoundationServices() {
  static const bool once = [] {
    // Never destroyed: observers may outlive every static object.
    NotificationCenter::setDefaultCenter(new FoundationNotificationCenter);
    AssertionHandler::setCurrentHandler(new FoundationAssertionHandler);
    useSystemLog();
    return true;
  }();
  static_cast<void>(once);
}

}  // namespace ui::appkit
