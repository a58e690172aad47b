#pragma once

#import <AppKit/AppKit.h>

#include <map>
#include <string>

#include "skins/appkit/Retained.h"
#include "ui/InterfaceFile.h"

namespace ui::appkit {

/// Loads a bundle's interface files. The file instantiates a class for each of the core's objects.
/// The view fills an outlet of the file's owner; the other objects fill the view's outlets of the
/// same names.
class AppKitInterfaceLoader final : public InterfaceLoader {
 public:
  struct Files {
    NSBundle* bundle;
    /// The file's owner. Not retained, because it owns the loader.
    id owner;
    /// The owner's outlet for the view.
    NSString* viewOutlet;
    /// The class for each of the core's objects, by the object's name; the view's name is "view".
    std::map<std::string, Class> classes;
  };

  explicit AppKitInterfaceLoader(Files files);

  std::unique_ptr<NativeView> loadNibNamed(std::string_view name,
                                           const MakeInterfaceObjects& makeObjects) override;

 private:
  Files files_;
};

}  // namespace ui::appkit
