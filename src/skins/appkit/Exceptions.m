#include "skins/appkit/Exceptions.h"

NSException* Velk_catchException(void (*work)(void* context), void* context) {
  @try {
    work(context);
  } @catch (NSException* exception) {
    return exception;
  }
  return nil;
}
