#pragma once

#include "skins/appkit/AppKitView.h"

/// The classes that the interface file instantiates. Their outlets and actions are declared by the
/// core's classes of the same names.

@interface Velk_AACEncodingViewAuditionController : Velk_InterfaceController
@end

@interface Velk_AACEncodingViewListeningTestController : Velk_InterfaceController
@end

@interface Velk_AACEncodingViewSettingsController : Velk_InterfaceController
@end

@interface Velk_AACEncodingViewKeyController : Velk_InterfaceController
@end

@interface Velk_AUAACConverterCustomView : Velk_View {
  Velk_AACEncodingViewAuditionController* auditionController;
  Velk_AACEncodingViewListeningTestController* listeningTestController;
  Velk_AACEncodingViewKeyController* keyController;
  Velk_AACEncodingViewSettingsController* settingsController;
}
@property(nonatomic, assign) IBOutlet Velk_AACEncodingViewAuditionController* auditionController;
@property(nonatomic, assign)
    IBOutlet Velk_AACEncodingViewListeningTestController* listeningTestController;
@property(nonatomic, assign) IBOutlet Velk_AACEncodingViewKeyController* keyController;
@property(nonatomic, assign) IBOutlet Velk_AACEncodingViewSettingsController* settingsController;
@end
