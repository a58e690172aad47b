#pragma once

#include "skins/appkit/AUCocoaUIView.h"
#include "ui/AUCocoaUIBase.h"

@class Velk_AUAACConverterCustomView;

/// The bundle's principal class.
@interface Velk_AUAACConverterFactory : NSObject <AUCocoaUIBase> {
  AUCocoaUIBase* _factory;
  Velk_AUAACConverterCustomView* uiFreshlyLoadedView;
}
/// Set only while an interface file is being loaded.
@property(nonatomic, assign) IBOutlet Velk_AUAACConverterCustomView* uiFreshlyLoadedView;
@end
