#include "skins/appkit/AppKitInterfaceLoader.h"

#include <utility>

#include "skins/appkit/AppKitView.h"
#include "skins/appkit/AudioUnitPump.h"
#include "skins/appkit/CaptionTranslation.h"
#include "skins/appkit/Exceptions.h"
#include "skins/appkit/LevelFormatter.h"
#include "skins/appkit/Segments.h"
#include "skins/appkit/Strings.h"
#include "skins/appkit/TabPages.h"
#include "skins/appkit/ViewTree.h"
#include "ui/Bundle.h"
#include "ui/DeclaredConnections.h"

namespace ui::appkit {

namespace {

constexpr std::string_view kViewName = "view";

/// Loads the file and returns its top-level objects, autoreleased.
NSArray* instantiate(NSBundle* bundle, std::string_view name, id owner) {
  NSArray* objects = nil;
  BOOL loaded = NO;
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  NSException* exception = catchException([&] {
    NSNib* nib = [[[NSNib alloc] initWithNibNamed:nsString(name) bundle:bundle] autorelease];
    loaded = nib != nil && [nib instantiateWithOwner:owner topLevelObjects:&objects];
  });
  [objects retain];
  [exception retain];
  [pool drain];
  [objects autorelease];
  [exception autorelease];
  if (exception != nil) {
    throw InterfaceError("cannot be read: " + utf8([exception reason]));
  }
  if (loaded != YES) {
    throw InterfaceError("is missing or cannot be read");
  }
#ifdef GNUSTEP
  // GNUstep gives the caller a reference to each of them as well.
  [objects makeObjectsPerformSelector:@selector(release)];
#endif
  return objects;
}

/// The file's object for the core's object of that name.
id objectNamed(const std::string& name, Velk_View* view) {
  if (name == kViewName) {
    return view;
  }
  const id object = [view valueForKey:nsString(name)];
  if (![object conformsToProtocol:@protocol(Velk_InterfaceObject)]) {
    throw InterfaceError("no object fills outlet \"" + std::string(kViewName) + "." + name + "\"");
  }
  return object;
}

/// Sets up the file's level formatters and shows the levels that the file contains.
void showLevels(NSArray* topLevelObjects, const LevelText& levelText) {
  forEachViewOf(topLevelObjects, [&](NSView* view) {
    if (![view isKindOfClass:[NSTextField class]]) {
      return;
    }
    auto* field = static_cast<NSTextField*>(view);
    const id formatter = [[field cell] formatter];
    if ([formatter isKindOfClass:[Velk_LevelFormatter class]]) {
      [formatter setLevelText:&levelText];
      [field setFloatValue:[[field stringValue] floatValue]];
    }
  });
}

void fillOutlets(const std::string& name, InterfaceObject& object,
                 const DeclaredConnections& declared, ControlTable& controls) {
  for (const Connections::Outlet& outlet : declared.of(name).outlets()) {
    const id filled = object.outlet(outlet.name);
    if (filled == nil) {
      continue;
    }
    const std::string kind = utf8(NSStringFromClass([filled class]));
    Object* control = controls.control(filled);
    if (control == nullptr) {
      throw InterfaceError("a " + kind + " cannot fill outlet \"" + name + "." + outlet.name +
                           "\"");
    }
    declared.fill(name, outlet.name, *control, kind);
  }
}

void wire(AppKitView& view, InterfaceObjects& objects) {
  const DeclaredConnections declared(objects.objects());
  for (const InterfaceObjects::Named& named : objects.objects()) {
    const id object = objectNamed(named.name, view.view());
    fillOutlets(named.name, *[object interfaceObject], declared, view.controls());
    view.connect(object, *named.connections);
  }
  declared.requireEveryOutlet();
}

}  // namespace

AppKitInterfaceLoader::AppKitInterfaceLoader(Files files) : files_(std::move(files)) {}

std::unique_ptr<NativeView> AppKitInterfaceLoader::loadNibNamed(
    std::string_view name, const MakeInterfaceObjects& makeObjects) {
  pumpAudioUnitEvents();
  auto view = std::make_unique<AppKitView>(files_.bundle);
  Toolkit& toolkit = view->services().toolkit();
  std::unique_ptr<InterfaceObjects> objects = makeObjects(*view, toolkit);
  for (const InterfaceObjects::Named& named : objects->objects()) {
    const auto found = files_.classes.find(named.name);
    if (found != files_.classes.end()) {
      addMethods(found->second, *named.connections);
    }
  }
  try {
    NSArray* topLevelObjects = instantiate(files_.bundle, name, files_.owner);
    const id loaded = [files_.owner valueForKey:files_.viewOutlet];
    [files_.owner setValue:nil forKey:files_.viewOutlet];
    if (![loaded isKindOfClass:[Velk_View class]]) {
      throw InterfaceError("no view fills outlet \"" + utf8(files_.viewOutlet) + "\" of its owner");
    }
    view->setView(loaded, topLevelObjects);
#ifdef GNUSTEP
    placePages(topLevelObjects);
    restoreSegments(topLevelObjects, [files_.bundle pathForResource:nsString(name) ofType:@"xib"]);
#endif
    translateCaptions(topLevelObjects, toolkit.bundle);
    showLevels(topLevelObjects, view->services().levelText());
    wire(*view, *objects);
  } catch (const InterfaceError& error) {
    throw InterfaceError("interface file \"" + std::string(name) + "\": " + error.what());
  }
  view->setObjects(std::move(objects));
  return view;
}

}  // namespace ui::appkit
