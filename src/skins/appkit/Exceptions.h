#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Runs the work and returns the NSException that it raises, or nil. Written in plain Objective-C
/// because `@catch` does not work in GNU's Objective-C++.
NSException* Velk_catchException(void (*work)(void* context), void* context);

#ifdef __cplusplus
}

namespace ui::appkit {

/// Runs `work` and returns the NSException that it raises, or nil. C++ exceptions propagate.
template <class Work>
NSException* catchException(Work work) {
  return Velk_catchException([](void* context) { (*static_cast<Work*>(context))(); }, &work);
}

}  // namespace ui::appkit
#endif
