#include "skins/appkit/bundle/InterfaceClasses.h"

@implementation Velk_AACEncodingViewAuditionController
@end

@implementation Velk_AACEncodingViewListeningTestController
@end

@implementation Velk_AACEncodingViewSettingsController
@end

@implementation Velk_AACEncodingViewKeyController
@end

@implementation Velk_AUAACConverterCustomView

@synthesize auditionController;
@synthesize listeningTestController;
@synthesize keyController;
@synthesize settingsController;

@end
