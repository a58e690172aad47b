#pragma once

#import <AppKit/AppKit.h>

#include <memory>
#include <string>

#include "ui/Connections.h"

namespace ui::appkit {

class ControlTable;

/// What stands behind one object that an interface file instantiates: the outlets that the file
/// filled and, once it is connected, the actions of the core's object that it stands for.
class InterfaceObject {
 public:
  virtual ~InterfaceObject() = default;
  static std::unique_ptr<InterfaceObject> make();

  /// From now on actions reach the core. Both live until `disconnect`, which empties the outlets.
  virtual void connect(const Connections& declared, ControlTable& controls) = 0;
  virtual void disconnect() = 0;

  virtual void setOutlet(const std::string& name, id object) = 0;
  /// Null if the file did not fill it.
  virtual id outlet(const std::string& name) const = 0;
  virtual void perform(const std::string& selector, id sender) const = 0;
};

/// Lets instances of the class, whose `interfaceObject` gives theirs, take every declared outlet
/// through a setter, give it, and perform every declared action, by the names that the declaration
/// has. A class that has a method of that name already keeps it.
void addMethods(Class objectClass, const Connections& declared);

}  // namespace ui::appkit

/// An object of the interface file that stands for one of the core's.
@protocol Velk_InterfaceObject <NSObject>
- (ui::appkit::InterfaceObject*)interfaceObject;
@end

/// One that is nothing else.
@interface Velk_InterfaceController : NSObject <Velk_InterfaceObject> {
  ui::appkit::InterfaceObject* _interfaceObject;
}
@end
