#include "skins/appkit/bundle/Velk_AUAACConverterFactory.h"

#include <type_traits>

#include "skins/appkit/Adapter.h"
#include "skins/appkit/AppKitInterfaceLoader.h"
#include "skins/appkit/AppKitView.h"
#include "skins/appkit/FoundationServices.h"
#include "skins/appkit/Strings.h"
#include "skins/appkit/bundle/InterfaceClasses.h"
#include "ui/Log.h"
#include "view/factory/Velk_AUAACConverterFactory.h"

static_assert(std::is_same_v<AudioUnit, audio_unit::Unit*>);

using ui::appkit::AppKitInterfaceLoader;
using ui::appkit::AppKitView;

@implementation Velk_AUAACConverterFactory

@synthesize uiFreshlyLoadedView;

- (instancetype)init {
  self = [super init];
  if (self != nil) {
    NSBundle* const bundle = [NSBundle bundleForClass:[self class]];
    const id owner = self;
    AUCocoaUIBase* factory = nullptr;
    ui::runGuarded([&] {
      ui::appkit::useFoundationServices();
      factory = new velk::Velk_AUAACConverterFactory(
          std::make_unique<AppKitInterfaceLoader>(AppKitInterfaceLoader::Files{
              bundle,
              owner,
              @"uiFreshlyLoadedView",
              {{"view", [Velk_AUAACConverterCustomView class]},
               {"auditionController", [Velk_AACEncodingViewAuditionController class]},
               {"listeningTestController", [Velk_AACEncodingViewListeningTestController class]},
               {"settingsController", [Velk_AACEncodingViewSettingsController class]},
               {"keyController", [Velk_AACEncodingViewKeyController class]}}}));
    });
    _factory = factory;
    if (_factory == nullptr) {
      [self release];
      return nil;
    }
  }
  return self;
}

- (void)dealloc {
  delete _factory;
  [super dealloc];
}

- (unsigned)interfaceVersion {
  return _factory->interfaceVersion();
}

- (NSString*)description {
  return ui::appkit::nsString(_factory->description());
}

- (NSView*)uiViewForAudioUnit:(AudioUnit)unit withSize:(NSSize)size {
  AUCocoaUIBase& factory = *_factory;
  NSView* view = nil;
  ui::runGuarded([&] {
    if (auto native = factory.uiViewForAudioUnit(unit, ui::appkit::sizeOf(size))) {
      view = AppKitView::handOver(std::move(native));
    }
  });
  return view;
}

@end
