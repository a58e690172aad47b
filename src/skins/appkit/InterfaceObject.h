#pragma once

#import <AppKit/AppKit.h>

#include <memory>
#include <string>

#include "ui/Connections.h"

namespace ui::appkit {

class ControlTable;

/// What is behind an object that an interface file instantiates: the outlets that the file has
/// filled and, once connected, the actions of the core's object that it represents.
class InterfaceObject {
 public:
  virtual ~InterfaceObject() = default;
  static std::unique_ptr<InterfaceObject> make();

  /// Makes actions reach the core. Both arguments must live until `disconnect`.
  virtual void connect(const Connections& declared, ControlTable& controls) = 0;
  /// Stops actions and forgets the outlets.
  virtual void disconnect() = 0;

  virtual void setOutlet(const std::string& name, id object) = 0;
  /// Nil if the file did not fill the outlet.
  virtual id outlet(const std::string& name) const = 0;
  virtual void perform(const std::string& selector, id sender) const = 0;
};

/// Adds to the class a setter and a getter for every declared outlet and a method for every
/// declared action, which forward to the instance's `interfaceObject`. Keeps existing methods.
void addMethods(Class objectClass, const Connections& declared);

}  // namespace ui::appkit

/// An object of the interface file that represents one of the core's.
@protocol Velk_InterfaceObject <NSObject>
- (ui::appkit::InterfaceObject*)interfaceObject;
@end

/// Such an object with no other purpose.
@interface Velk_InterfaceController : NSObject <Velk_InterfaceObject> {
  ui::appkit::InterfaceObject* _interfaceObject;
}
@end
