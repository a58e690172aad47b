#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Runs the work and gives the NSException that it raised, or null. In plain Objective-C, because
/// GNU's Objective-C++ cannot catch one.
NSException* Velk_exceptionOf(void (*work)(void* context), void* context);

#ifdef __cplusplus
}

namespace ui::appkit {

/// The NSException that `work` raised, or null. A C++ exception passes through.
template <class Work>
NSException* exceptionOf(Work work) {
  return Velk_exceptionOf([](void* context) { (*static_cast<Work*>(context))(); }, &work);
}

}  // namespace ui::appkit
#endif
