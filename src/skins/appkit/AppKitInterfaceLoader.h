#pragma once

#import <AppKit/AppKit.h>

#include <map>
#include <string>

#include "skins/appkit/Retained.h"
#include "ui/InterfaceFile.h"

namespace ui::appkit {

/// Loads interface files of a bundle. The file instantiates a class for each of the core's objects;
/// the view fills an outlet of the file's owner, the other objects fill outlets of the view that
/// bear their names.
class AppKitInterfaceLoader final : public InterfaceLoader {
 public:
  struct Files {
    NSBundle* bundle;
    /// Not retained; it owns the loader.
    id owner;
    /// Of the owner, for the view.
    NSString* viewOutlet;
    /// The class of each of the core's objects, by the object's name; the view's is "view".
    std::map<std::string, Class> classes;
  };

  explicit AppKitInterfaceLoader(Files files);

  std::unique_ptr<NativeView> loadNibNamed(std::string_view name,
                                           const MakeInterfaceObjects& makeObjects) override;

 private:
  Files files_;
};

}  // namespace ui::appkit
